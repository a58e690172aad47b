#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "ui/Controls.h"

namespace ui {

class UI_EXPORT Window : public Object {
 public:
  ~Window() override;
};

/// A window of the interface file that is shown document-modally.
class UI_EXPORT Sheet : public Window {
 public:
  ~Sheet() override;
};

struct AlertTexts {
  /// Empty for no title.
  std::string title;
  std::string defaultButton;
  std::string alternateButton;
  std::string message;
};

/// Return codes of an alert sheet. Closing it without a button counts as the default button.
inline constexpr int kAlertDefaultReturn = 1;
inline constexpr int kAlertAlternateReturn = 0;

struct SavePanelTexts {
  std::string title;
  /// Without the extension.
  std::string proposedName;
  /// Without the dot; added to a name that lacks it.
  std::string allowedFileType;
};

/// Document-modal sheets and the save panel. Main thread only. Whatever is open when the view goes
/// away is cancelled, and its end function is never called.
class UI_EXPORT Sheets {
 public:
  virtual ~Sheets();

  /// Shows the sheet over the window of `control` and returns at once. `didEnd` is called with the
  /// code passed to `endSheet`; it orders the sheet out.
  virtual void beginSheet(Sheet& sheet, View& control, std::function<void(int code)> didEnd) = 0;
  /// Ends an open sheet, which stays visible until it is ordered out.
  virtual void endSheet(Sheet& sheet, int code) = 0;
  virtual void orderOut(Sheet& sheet) = 0;

  /// Shows an alert over the window of `control` and returns at once. `didEnd` receives the
  /// alert's own window and the return code.
  virtual void beginAlertSheet(const AlertTexts& texts, View& control,
                               std::function<void(Window& alert, int code)> didEnd) = 0;

  /// Runs the panel modally over the window of `control`. Returns the chosen file, or nothing if
  /// the user cancelled.
  virtual std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts,
                                                            View& control) = 0;
};

}  // namespace ui

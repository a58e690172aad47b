#pragma once

#import <AppKit/AppKit.h>

#include <map>
#include <memory>

#include "skins/appkit/ActionTarget.h"
#include "ui/Sheets.h"

namespace ui {
class RunLoop;
class Deferred;
}  // namespace ui

namespace ui::appkit {

/// Document-modal sheets of one view.
///
/// GNUstep's way of showing a sheet returns only when the sheet has ended. There it is shown on the
/// next turn of the run loop, which then runs within.
class AppKitSheets final : public Sheets {
 public:
  explicit AppKitSheets(RunLoop& runLoop);
  ~AppKitSheets() override;
  /// Takes away what is open or about to open; no end function is called.
  void cancelAll();

  void beginSheet(Sheet& sheet, View& control, std::function<void(int code)> didEnd) override;
  void endSheet(Sheet& sheet, int code) override;
  void orderOut(Sheet& sheet) override;
  void beginAlertSheet(const AlertTexts& texts, View& control,
                       std::function<void(Window& alert, int code)> didEnd) override;
  std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts,
                                                    View& control) override;

 private:
  struct Begun {
    NSWindow* parent;
    std::function<void(int)> didEnd;
    /// Set while the sheet waits to be shown.
    std::unique_ptr<Deferred> showing;
  };
  class Alert;

  RunLoop& runLoop_;
  std::map<Sheet*, Begun> begun_;
  std::unique_ptr<Alert> alert_;
};

}  // namespace ui::appkit

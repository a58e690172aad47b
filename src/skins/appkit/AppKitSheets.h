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

/// One view's document-modal sheets.
///
/// On GNUstep the call that shows a sheet returns only when the sheet has ended. There a sheet is
/// therefore shown on the next turn of the run loop, and that call runs a nested loop.
class AppKitSheets final : public Sheets {
 public:
  explicit AppKitSheets(RunLoop& runLoop);
  ~AppKitSheets() override;
  /// Closes whatever is open or about to open without calling its `didEnd`.
  void cancelAll();

  void beginSheet(Sheet& sheet, View& control, std::function<void(int code)> didEnd) override;
  void endSheet(Sheet& sheet, int code) override;
  void orderOut(Sheet& sheet) override;
  void beginAlertSheet(const AlertTexts& texts, View& control,
                       std::function<void(Window& alert, int code)> didEnd) override;
  std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts,
                                                    View& control) override;

 private:
  struct OpenSheet {
    NSWindow* parent;
    std::function<void(int)> didEnd;
    /// Set until the sheet is shown.
    std::unique_ptr<Deferred> pendingShow;
  };
  class Alert;

  RunLoop& runLoop_;
  std::map<Sheet*, OpenSheet> open_;
  std::unique_ptr<Alert> alert_;
};

}  // namespace ui::appkit

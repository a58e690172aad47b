#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>

#include "ui/Sheets.h"

class QMessageBox;

namespace ui::qt {

class SheetDialog;

/// One view's sheets: dialogs that are modal to the view's window. None of them blocks the caller
/// except the save panel, which runs an event loop of its own.
class QtSheets final : public Sheets {
 public:
  /// `didClose` is called after a sheet has been ordered out or an alert answered.
  QtSheets(QWidget& view, std::function<void()> didClose);
  ~QtSheets() override;
  /// Closes whatever is open without calling its `didEnd`.
  void cancelAll();

  void beginSheet(Sheet& sheet, View& control, std::function<void(int code)> didEnd) override;
  void endSheet(Sheet& sheet, int code) override;
  void orderOut(Sheet& sheet) override;
  void beginAlertSheet(const AlertTexts& texts, View& control,
                       std::function<void(Window& alert, int code)> didEnd) override;
  std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts,
                                                    View& control) override;

 private:
  QWidget& view_;
  std::function<void()> didClose_;
  /// What to call when each open sheet ends.
  std::map<Sheet*, std::function<void(int)>> open_;
  QPointer<QMessageBox> alert_;
};

}  // namespace ui::qt

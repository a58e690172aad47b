#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>

#include "ui/Sheets.h"

class QMessageBox;

namespace ui::qt {

class SheetDialog;

/// Sheets of one view: windows that are modal to the view's own window and leave the event loop
/// running; only the save panel runs a loop of its own.
class QtSheets final : public Sheets {
 public:
  /// `didLeave` is called whenever a sheet has been ordered out or an alert was answered.
  QtSheets(QWidget& view, std::function<void()> didLeave);
  ~QtSheets() override;
  /// Takes away what is open; no end function is called.
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
  std::function<void()> didLeave_;
  std::map<Sheet*, std::function<void(int)>> begun_;
  QPointer<QMessageBox> alert_;
};

}  // namespace ui::qt

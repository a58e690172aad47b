#pragma once

#include <QDialog>

#include "ui/Sheets.h"

namespace ui::qt {

/// A sheet: a page in the interface file, a window-modal dialog when shown. Escape and closing the
/// window press the button whose dynamic property `cancels` is true; without one they are ignored.
class SheetDialog final : public QDialog {
 public:
  explicit SheetDialog(QWidget* parent = nullptr);

  /// Makes the page a window of its own, with `view` as its parent.
  void becomeWindowOf(QWidget& view);
  /// Shows the sheet, as wide as its layout asks for and as high as its texts then need.
  void showAsSheet();

  /// Called for Escape and for closing the window.
  void reject() override;
  /// Does nothing: the sheet is closed only through `QtSheets`.
  void accept() override {}
};

class SheetAdapter final : public Sheet {
 public:
  explicit SheetAdapter(SheetDialog& dialog) : dialog_(dialog) {}
  SheetDialog& dialog() const { return dialog_; }

 private:
  SheetDialog& dialog_;
};

}  // namespace ui::qt

#pragma once

#include <QDialog>

#include "ui/Sheets.h"

namespace ui::qt {

/// A sheet of the interface file: a page there, a document-modal window when it is shown. Escape
/// and closing it press the button whose dynamic property `cancels` is true; a sheet without one
/// can only be left by its other buttons.
class SheetDialog final : public QDialog {
 public:
  explicit SheetDialog(QWidget* parent = nullptr);

  /// Makes the page a window over `view`.
  void becomeWindowOf(QWidget& view);
  /// Shows it as wide as it was drawn at least, and as high as its texts need.
  void begin();

  void reject() override;
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

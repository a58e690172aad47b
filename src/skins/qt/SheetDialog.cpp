#include "skins/qt/SheetDialog.h"

#include <QAbstractButton>
#include <QLayout>
#include <QPushButton>
#include <QVariant>

namespace ui::qt {

SheetDialog::SheetDialog(QWidget* parent) : QDialog(parent) {}

void SheetDialog::becomeWindowOf(QWidget& view) {
  setParent(&view, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  setWindowModality(Qt::WindowModal);
  // The sheet inherits the view's font and palette.
  setAttribute(Qt::WA_WindowPropagation);
  hide();
}

void SheetDialog::showAsSheet() {
  layout()->activate();
  const QSize wanted = layout()->totalSizeHint();
  const int height = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(wanted.width())
                                                   : wanted.height();
  setFixedSize(wanted.width(), height);
  for (QPushButton* button : findChildren<QPushButton*>()) {
    if (button->isDefault()) {
      button->setFocus();
    }
  }
  show();
  raise();
  activateWindow();
}

void SheetDialog::reject() {
  for (QAbstractButton* button : findChildren<QAbstractButton*>()) {
    if (button->property("cancels").toBool()) {
      button->click();
      return;
    }
  }
}

}  // namespace ui::qt

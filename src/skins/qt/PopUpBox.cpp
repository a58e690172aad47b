#include "skins/qt/PopUpBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace ui::qt {

PopUpBox::PopUpBox(QWidget* parent) : QComboBox(parent) {}

void PopUpBox::showPopup() {
  if (!watchesMenu_) {
    view()->viewport()->installEventFilter(this);
    watchesMenu_ = true;
  }
  QComboBox::showPopup();
}

void PopUpBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Up:
    case Qt::Key_Down:
      showPopup();
      break;
    default:
      event->ignore();
  }
}

void PopUpBox::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

bool PopUpBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
    const QModelIndex item = view()->indexAt(place);
    // Qt would pick the item that the pointer was over before.
    if (item.isValid() && !item.flags().testFlag(Qt::ItemIsEnabled)) {
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

}  // namespace ui::qt

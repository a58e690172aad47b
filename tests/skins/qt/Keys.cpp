#include "skins/qt/Keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>
#include <stdexcept>

#include "skins/qt/KeyCodes.h"

namespace qt_test {

namespace {

std::uint32_t scanCodeFor(std::uint16_t positionCode) {
  for (std::uint32_t key = 1; key < 256; ++key) {
    if (ui::qt::positionCodeForEvdev(key) == positionCode) {
      return key + 8;
    }
  }
  return 0;
}

int qtKeyFor(std::uint16_t positionCode) {
  for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key) {
    if (ui::qt::positionCodeForQtKey(key, false) == positionCode) {
      return key;
    }
  }
  for (int key = Qt::Key_Escape; key <= Qt::Key_Help; ++key) {
    if (ui::qt::positionCodeForQtKey(key, false) == positionCode) {
      return key;
    }
  }
  return Qt::Key_unknown;
}

}  // namespace

void pressKeyAt(std::uint16_t positionCode, QWidget& widget) {
  const QPointer<QWidget> receiver = &widget;
  const int key = qtKeyFor(positionCode);
  const QString text =
      key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde ? QString(QChar(key)).toLower() : QString();
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (receiver != nullptr) {
      QKeyEvent event(type, key, Qt::NoModifier, scanCodeFor(positionCode), 0, 0, text);
      QApplication::sendEvent(receiver, &event);
    }
  }
}

void pressKeyAt(std::uint16_t positionCode) {
  QWidget* focused = QApplication::focusWidget();
  if (focused == nullptr) {
    throw std::logic_error("no widget has the focus");
  }
  pressKeyAt(positionCode, *focused);
}

}  // namespace qt_test

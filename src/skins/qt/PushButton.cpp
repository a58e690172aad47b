#include "skins/qt/PushButton.h"

#include <QFontMetrics>
#include <algorithm>

namespace ui::qt {

namespace {

constexpr int kLeastSpace = 12;

}  // namespace

PushButton::PushButton(QWidget* parent) : QPushButton(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize PushButton::minimumSizeHint() const {
  const QSize wanted = sizeHint();
  // An on button's title is bold.
  QFont bold = font();
  bold.setBold(true);
  const int title = QFontMetrics(bold).horizontalAdvance(text());
  return {std::min(wanted.width(), title + kLeastSpace), wanted.height()};
}

}  // namespace ui::qt

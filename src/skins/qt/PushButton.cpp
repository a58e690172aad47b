#include "skins/qt/PushButton.h"

#include <QFontMetrics>
#include <algorithm>

namespace ui::qt {

namespace {

constexpr int kMinimumPadding = 12;

}  // namespace

PushButton::PushButton(QWidget* parent) : QPushButton(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize PushButton::minimumSizeHint() const {
  const QSize wanted = sizeHint();
  // The title is bold while the button is on.
  QFont bold = font();
  bold.setBold(true);
  const int title = QFontMetrics(bold).horizontalAdvance(text());
  return {std::min(wanted.width(), title + kMinimumPadding), wanted.height()};
}

}  // namespace ui::qt

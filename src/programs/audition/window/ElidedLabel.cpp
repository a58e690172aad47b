#include "programs/audition/window/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace host::audition {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : QLabel(parent), mode_(mode) {
  setTextFormat(Qt::PlainText);
}

void ElidedLabel::setFullText(const QString& text) {
  if (text == this->text()) return;
  setText(text);
  setToolTip(text);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const auto line = fontMetrics().elidedText(text(), mode_, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), line, foregroundRole());
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

}  // namespace host::audition

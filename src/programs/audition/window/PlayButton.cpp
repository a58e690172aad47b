#include "programs/audition/window/PlayButton.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace host::audition {

PlayButton::PlayButton(QWidget* parent) : QAbstractButton(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setPlaying(false);
}

void PlayButton::setPlaying(bool playing) {
  playing_ = playing;
  const QString word = playing ? tr("Pause") : tr("Play");
  if (word != accessibleName()) {
    setAccessibleName(word);
    setToolTip(word);
  }
  update();
}

QSize PlayButton::sizeHint() const {
  return {40, 32};
}

void PlayButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QStyleOptionButton option;
  option.initFrom(this);
  option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);

  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  const QPointF middle = QRectF(rect()).center();
  if (playing_) {
    painter.drawRect(QRectF(middle + QPointF(-5, -6), QSizeF(4, 12)));
    painter.drawRect(QRectF(middle + QPointF(1, -6), QSizeF(4, 12)));
  } else {
    painter.drawPolygon(
        QPolygonF({middle + QPointF(-4, -6), middle + QPointF(6, 0), middle + QPointF(-4, 6)}));
  }
}

}  // namespace host::audition

#include "host/app/PositionSlider.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

namespace host::app {

PositionSlider::PositionSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setAccessibleName(tr("Position"));
  setRange(0, 0);
  setSingleStep(1000);
  setPageStep(5000);
  // Only a user's action gets here; dragging is answered when it ends.
  connect(this, &QSlider::actionTriggered, this, [this](int action) {
    if (action != SliderMove) Q_EMIT chosen(sliderPosition());
  });
}

void PositionSlider::showPosition(int milliseconds) {
  if (!isSliderDown()) setValue(milliseconds);
}

int PositionSlider::placeAt(const QPointF& point) const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto groove =
      style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
  const auto handle =
      style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
  const auto span = groove.width() - handle.width();
  const auto place = qRound(point.x()) - groove.x() - handle.width() / 2;
  return QStyle::sliderValueFromPosition(minimum(), maximum(), place, span, option.upsideDown);
}

void PositionSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  setSliderDown(true);
  setSliderPosition(placeAt(event->position()));
  event->accept();
}

void PositionSlider::mouseMoveEvent(QMouseEvent* event) {
  if (!isSliderDown()) return;
  setSliderPosition(placeAt(event->position()));
  event->accept();
}

void PositionSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !isSliderDown()) return;
  setSliderDown(false);
  Q_EMIT chosen(sliderPosition());
  event->accept();
}

}  // namespace host::app

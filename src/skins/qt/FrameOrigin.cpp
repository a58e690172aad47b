#include "skins/qt/FrameOrigin.h"

#include <QEvent>
#include <QPointF>
#include <QVariant>
#include <QWidget>
#include <cmath>

namespace ui::qt {

Point frameOrigin(const QWidget& widget) {
  if (const QVariant origin = widget.property(kFrameOriginProperty); origin.isValid()) {
    return {origin.toPointF().x(), origin.toPointF().y()};
  }
  const QWidget* parent = widget.parentWidget();
  const int parentHeight = parent != nullptr ? parent->height() : widget.height();
  return {static_cast<double>(widget.x()),
          static_cast<double>(parentHeight - widget.y() - widget.height())};
}

void setFrameOrigin(QWidget& widget, Point origin) {
  widget.setProperty(kFrameOriginProperty, QPointF(origin.x, origin.y));
}

FramePlacement::FramePlacement(QWidget& widget, QWidget& view, int drawnHeight)
    : QObject(&widget), widget_(widget), view_(view), drawnHeight_(drawnHeight) {
  widget_.installEventFilter(this);
  widget_.parentWidget()->installEventFilter(this);
  place();
}

bool FramePlacement::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::DynamicPropertyChange || event->type() == QEvent::Resize ||
      event->type() == QEvent::Move || event->type() == QEvent::Show) {
    place();
  }
  return false;
}

void FramePlacement::place() {
  const Point origin = frameOrigin(widget_);
  const int top = drawnHeight_ - static_cast<int>(std::lround(origin.y)) - widget_.height();
  const int x = static_cast<int>(std::lround(origin.x));
  widget_.move(x, widget_.parentWidget()->mapFrom(&view_, QPoint(0, top)).y());
}

}  // namespace ui::qt

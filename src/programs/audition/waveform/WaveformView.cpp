#include "programs/audition/waveform/WaveformView.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "programs/audition/waveform/AccessibleWaveform.h"
#include "programs/audition/waveform/TimeText.h"
#include "programs/audition/waveform/WaveformPicture.h"

namespace host::audition {
namespace {

constexpr int kDefaultWidth = 560;
/// How far from an edge of the loop the mouse can grab it.
constexpr double kReach = 5;

}  // namespace

WaveformView::WaveformView(QWidget* parent) : QWidget(parent) {
  makeWaveformsAccessible();
  setAccessibleName(tr("Waveform"));
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize WaveformView::sizeHint() const {
  return {kDefaultWidth, WaveformLanes::kHeight};
}

void WaveformView::setFile(std::shared_ptr<const SharedOverview> overview, AudioFormat format) {
  cancelGesture();
  overview_ = std::move(overview);
  format_ = format;
  length_ = 0;
  position_ = 0;
  loop_.reset();
  anchor_.reset();
  setRange({});
}

void WaveformView::refresh(std::shared_ptr<const SharedOverview> overview, std::int64_t length,
                           std::int64_t position) {
  if (length != length_) {
    const bool isNew = length_ == 0;
    length_ = length;
    auto range = isNew ? VisibleRange(length) : range_;
    range.setLength(length);
    setRange(range);
  }
  if (overview != overview_ || (overview && overview->revision() != drawnRevision_)) {
    overview_ = std::move(overview);
    picture_ = {};
    update();
  }
  if (position == position_) return;
  position_ = position;
  if (following_ && !gesture_ && !range_.isAll()) {
    auto range = range_;
    range.follow(position);
    setRange(range);
  }
  const auto shown = std::llround(range_.xOf(position, width()) * devicePixelRatioF());
  if (shown != std::exchange(shownPosition_, shown)) update();
}

void WaveformView::setLoop(const std::optional<LoopRange>& loop, bool isOn) {
  if (loop == loop_ && isOn == loopIsOn_) return;
  loop_ = loop;
  loopIsOn_ = isOn;
  update();
}

void WaveformView::setRange(const VisibleRange& range) {
  if (range == range_) return;
  range_ = range;
  picture_ = {};
  update();
}

void WaveformView::zoom(double factor) {
  auto range = range_;
  const bool isVisible = position_ >= range.start() && position_ <= range.end();
  range.zoom(factor, isVisible ? position_ : (range.start() + range.end()) / 2);
  setRange(range);
}

std::int64_t WaveformView::step() const {
  constexpr std::int64_t steps = 100;
  return std::max<std::int64_t>(range_.span() / steps, 1);
}

void WaveformView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (!overview_ || length_ == 0) {
    painter.fillRect(rect(), palette().color(QPalette::Base));
    return;
  }
  if (picture_.isNull() || picture_.devicePixelRatio() != devicePixelRatioF() ||
      picture_.deviceIndependentSize().toSize().width() != width()) {
    drawnRevision_ = overview_->revision();
    picture_ = waveformPicture(*overview_, range_, width(), devicePixelRatioF(), palette());
  }
  painter.drawPixmap(0, 0, picture_);
  paintLoop(painter);
  paintPlayhead(painter);
  if (!hasFocus()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void WaveformView::paintLoop(QPainter& painter) const {
  const auto& loop = drags_ ? gesture_->loop() : loop_;
  if (!loop) return;
  const bool isOn = loopIsOn_ || drags_;
  const auto left = range_.xOf(loop->start, width());
  const auto right = std::max(range_.xOf(loop->end, width()), left + 1);
  auto color = palette().color(isOn ? QPalette::Highlight : QPalette::Mid);
  painter.fillRect(QRectF(left, 2, right - left, WaveformLanes::kLoop - 4), color);
  painter.fillRect(QRectF(left, 0, 1, height()), color);
  painter.fillRect(QRectF(right - 1, 0, 1, height()), color);
  color.setAlphaF(isOn ? 0.22F : 0.1F);
  painter.fillRect(
      QRectF(left, WaveformLanes::kLoop, right - left, height() - WaveformLanes::kLoop), color);
}

void WaveformView::paintPlayhead(QPainter& painter) const {
  const auto x = range_.xOf(position_, width());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const auto color = palette().color(QPalette::Text);
  painter.fillRect(QRectF(std::clamp(x - 0.5, 0.0, width() - 1.0), 0, 1, height()), color);
  painter.setBrush(color);
  painter.drawPolygon(QPolygonF({{x - 4, 0.0}, {x + 4, 0.0}, {x, 5.0}}));
  painter.setRenderHint(QPainter::Antialiasing, false);
}

std::int64_t WaveformView::frameAt(const QPointF& point) const {
  return std::clamp<std::int64_t>(range_.frameAt(point.x(), width()), 0, length_);
}

LoopPart WaveformView::partAt(const QPointF& point) const {
  if (!loop_) return LoopPart::None;
  const auto left = range_.xOf(loop_->start, width());
  const auto right = range_.xOf(loop_->end, width());
  const auto toLeft = std::abs(point.x() - left);
  const auto toRight = std::abs(point.x() - right);
  // In its lane even a short loop keeps a middle to grab.
  const bool inLane = point.y() < WaveformLanes::kLoop;
  const auto near = inLane ? std::min(kReach, (right - left) / 4) : kReach;
  if (std::min(toLeft, toRight) <= near) return toLeft < toRight ? LoopPart::Start : LoopPart::End;
  const bool inside = point.x() > left && point.x() < right;
  return inside && inLane ? LoopPart::Whole : LoopPart::None;
}

void WaveformView::showCursor(const QPointF& point) {
  switch (partAt(point)) {
    case LoopPart::Start:
    case LoopPart::End:
      return setCursor(Qt::SizeHorCursor);
    case LoopPart::Whole:
      return setCursor(Qt::OpenHandCursor);
    case LoopPart::None:
      return unsetCursor();
  }
}

void WaveformView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || length_ == 0) return event->ignore();
  pressedAt_ = event->position();
  gesture_.emplace(partAt(pressedAt_), frameAt(pressedAt_), loop_, length_);
  drags_ = false;
}

void WaveformView::mouseMoveEvent(QMouseEvent* event) {
  if (!gesture_) return showCursor(event->position());
  const auto distance = std::abs(event->position().x() - pressedAt_.x());
  if (!drags_ && distance < QApplication::startDragDistance()) return;
  drags_ = true;
  gesture_->moveTo(range_.frameAt(event->position().x(), width()));
  update();
}

void WaveformView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !gesture_) return event->ignore();
  const auto loop = gesture_->loop();
  const bool dragged = drags_;
  cancelGesture();
  if (dragged) {
    chooseLoop(loop);
  } else {
    choosePosition(frameAt(event->position()));
  }
}

void WaveformView::cancelGesture() {
  gesture_.reset();
  drags_ = false;
  update();
}

void WaveformView::wheelEvent(QWheelEvent* event) {
  constexpr double notch = 120;
  const auto turned = event->angleDelta();
  auto range = range_;
  if (turned.x() != 0 || event->modifiers().testFlag(Qt::ShiftModifier)) {
    const double by = turned.x() != 0 ? turned.x() : turned.y();
    range.scroll(-std::llround(by / notch * static_cast<double>(range.span()) / 8));
  } else {
    range.zoom(std::pow(0.8, turned.y() / notch), frameAt(event->position()));
  }
  setRange(range);
  event->accept();
}

void WaveformView::choosePosition(std::int64_t frame) {
  anchor_.reset();
  Q_EMIT positionChosen(std::clamp<std::int64_t>(frame, 0, length_));
}

void WaveformView::chooseLoop(const std::optional<LoopRange>& loop) {
  if (loop) {
    Q_EMIT loopChosen(loop->start, loop->end);
  } else {
    Q_EMIT loopChosen(0, 0);
  }
}

bool WaveformView::event(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) picture_ = {};
  if (event->type() == QEvent::ToolTip && overview_) {
    const auto* const help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tipAt(help->pos()), this);
    return true;
  }
  return QWidget::event(event);
}

}  // namespace host::audition

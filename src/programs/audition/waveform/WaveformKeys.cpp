#include <QKeyEvent>
#include <algorithm>

#include "programs/audition/waveform/TimeText.h"
#include "programs/audition/waveform/WaveformView.h"

namespace host::audition {
namespace {

constexpr std::int64_t kStepsOfAPage = 20;

}  // namespace

void WaveformView::keyPressEvent(QKeyEvent* event) {
  // Keys that this widget does not use are left to others, above all to the converter's view.
  if (length_ == 0 || !(moveByKey(*event) || loopByKey(*event))) event->ignore();
}

void WaveformView::keyReleaseEvent(QKeyEvent* event) {
  event->ignore();
  if (event->key() != Qt::Key_Shift || !anchor_) return;
  chooseLoop(drags_ ? gesture_->loop() : std::nullopt);
  anchor_.reset();
  cancelGesture();
}

bool WaveformView::moveByKey(const QKeyEvent& event) {
  const bool shifts = event.modifiers() == Qt::ShiftModifier;
  const bool bare = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const auto by = [&](std::int64_t frames) {
    if (shifts) {
      extendLoop(frames);
    } else {
      choosePosition(position_ + frames);
    }
    return true;
  };
  if (event.modifiers() == Qt::AltModifier && loop_) {
    const bool left = event.key() == Qt::Key_Left;
    if (!left && event.key() != Qt::Key_Right) return false;
    chooseLoop(movedLoop(*loop_, left ? -step() : step(), length_));
    return true;
  }
  if (!shifts && !bare) return false;
  switch (event.key()) {
    case Qt::Key_Left:
      return by(-step());
    case Qt::Key_Right:
      return by(step());
    case Qt::Key_PageUp:
      return by(-kStepsOfAPage * step());
    case Qt::Key_PageDown:
      return by(kStepsOfAPage * step());
    case Qt::Key_Home:
      return by(-length_);
    case Qt::Key_End:
      return by(length_);
    default:
      return false;
  }
}

void WaveformView::extendLoop(std::int64_t by) {
  if (!anchor_) {
    anchor_ = extended_ = position_;
    gesture_.emplace(LoopPart::None, position_, loop_, length_);
    drags_ = true;
  }
  extended_ = std::clamp<std::int64_t>(extended_ + by, 0, length_);
  gesture_->moveTo(extended_);
  update();
}

bool WaveformView::loopByKey(const QKeyEvent& event) {
  const bool plain =
      (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier)) ==
      Qt::NoModifier;
  // Some layouts have brackets only with AltGr, which arrives as Ctrl+Alt.
  const bool altGr = event.modifiers() == (Qt::ControlModifier | Qt::AltModifier);
  if (!plain && !altGr) return false;
  switch (event.key()) {
    case Qt::Key_I:
    case Qt::Key_BracketLeft:
      chooseLoop(loopFrom(position_, loop_, length_));
      return true;
    case Qt::Key_O:
    case Qt::Key_BracketRight:
      chooseLoop(loopUpTo(position_, loop_));
      return true;
    case Qt::Key_L:
      Q_EMIT loopToggled();
      return true;
    case Qt::Key_Delete:
      chooseLoop(std::nullopt);
      return true;
    case Qt::Key_Escape:
      if (!gesture_) return false;
      anchor_.reset();
      cancelGesture();
      return true;
    case Qt::Key_Plus:
      zoom(WaveformView::kZoomStep);
      return true;
    case Qt::Key_Minus:
      zoom(1 / WaveformView::kZoomStep);
      return true;
    default:
      return false;
  }
}

QString WaveformView::valueText() const {
  if (!overview_ || length_ == 0) return tr("No file");
  const auto time = [&](std::int64_t frame) { return timeText(frame, format_.sampleRate); };
  QString text = tr("%1 of %2").arg(time(position_), time(length_));
  if (loop_) {
    text += QStringLiteral("; ") +
            (loopIsOn_ ? tr("loop from %1 to %2") : tr("loop from %1 to %2, switched off"))
                .arg(time(loop_->start), time(loop_->end));
  }
  return text;
}

QString WaveformView::tipAt(const QPointF& point) const {
  const auto start = range_.frameAt(point.x() - 3, width());
  const auto end = std::max(range_.frameAt(point.x() + 3, width()), start + 1);
  std::int64_t source = 0;
  std::int64_t encoded = 0;
  for (std::uint32_t channel = 0; channel < overview_->channels(); ++channel) {
    const auto column = overview_->columns(channel, start, end, 1).front();
    source += column.sourceOvers;
    encoded += column.encodedOvers;
  }
  QString text = timeText(frameAt(point), format_.sampleRate);
  const auto count = [](std::int64_t overs) { return QLocale().toString(overs); };
  if (source > 0) text += QLatin1Char('\n') + tr("▼ Source overs: %1").arg(count(source));
  if (encoded > 0) text += QLatin1Char('\n') + tr("▲ Encoded overs: %1").arg(count(encoded));
  return text;
}

}  // namespace host::audition

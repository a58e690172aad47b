#include "programs/audition/window/TimeDisplay.h"

#include "programs/audition/waveform/TimeText.h"

namespace host::audition {
namespace {

constexpr int kPadding = 16;

}  // namespace

TimeDisplay::TimeDisplay(QWidget* parent) : QToolButton(parent) {
  setAutoRaise(true);
  connect(this, &QToolButton::clicked, this, [this] {
    showsRemaining_ = !showsRemaining_;
    showText();
  });
  showText();
}

void TimeDisplay::showTime(std::int64_t position, std::int64_t length, std::uint32_t sampleRate) {
  position_ = position;
  if (length != length_ || sampleRate != sampleRate_) {
    // As wide as the longest time, so that nothing moves while time runs.
    const auto longest = QString(timeText(-length, sampleRate));
    setFixedWidth(fontMetrics().horizontalAdvance(longest) + kPadding);
  }
  length_ = length;
  sampleRate_ = sampleRate;
  showText();
}

void TimeDisplay::showText() {
  const auto text = timeText(showsRemaining_ ? position_ - length_ : position_, sampleRate_);
  if (text != this->text()) setText(text);
  const auto name = showsRemaining_ ? tr("Remaining time") : tr("Elapsed time");
  if (name == accessibleName()) return;
  setAccessibleName(name);
  setToolTip(showsRemaining_ ? tr("Remaining time; click for the elapsed one")
                             : tr("Elapsed time; click for the remaining one"));
}

}  // namespace host::audition

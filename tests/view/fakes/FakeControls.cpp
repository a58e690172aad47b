#include "view/fakes/FakeControls.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace fakes {

void FakeButton::userClicks() {
  if (!isEnabled()) {
    return;
  }
  if (onOff_) {
    state_ = state_ == 0 ? 1 : 0;
  }
  sendAction(this);
}

void FakeButton::setState(int state) {
  record("setState ", state);
  if (onOff_) {
    state_ = state;
  }
}

void FakeButton::performClick() {
  record("performClick");
  userClicks();
}

void FakeTextField::setStringValue(const std::string& text) {
  record("setStringValue ", text);
  text_ = text;
}

void FakeTextField::setIntegerValue(std::int64_t value) {
  record("setIntegerValue ", value);
  text_ = localization_.plain(value);
}

void FakeTextField::setFloatValue(float value) {
  record("setFloatValue ", value);
  text_ = localization_.oneDecimal(static_cast<double>(value)) + " dB";
}

void FakeTextField::setTextColor(const ui::Color& color) {
  record("setTextColor ", color.red, " ", color.green, " ", color.blue, " ", color.alpha);
  color_ = color;
}

void FakeLevelIndicator::setIntValue(int value) {
  record("setIntValue ", value);
  value_ = value;
}

void FakeSegmentedControl::userSelects(int segment) {
  if (!isEnabled() || isHidden()) {
    return;
  }
  segment_ = segment;
  sendAction(this);
}

void FakeSegmentedControl::setSelectedSegment(int segment) {
  record("setSelectedSegment ", segment);
  segment_ = segment;
}

void FakeSlider::userDrags(double position) {
  position_ = position;
  sendAction(this);
}

int FakeSlider::intValue() const {
  if (std::isnan(position_)) {
    return 0;
  }
  constexpr double kLowest = std::numeric_limits<int>::min();
  constexpr double kHighest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(position_, kLowest, kHighest));
}

void FakeSlider::setFloatValue(float value) {
  record("setFloatValue ", value);
  position_ = static_cast<double>(value);
}

}  // namespace fakes

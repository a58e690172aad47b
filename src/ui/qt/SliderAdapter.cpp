#include "ui/qt/SliderAdapter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ui::qt {

SliderAdapter::SliderAdapter(QSlider& slider) : Adapter(slider) {
  // The signal of a user's drag, wheel or key, sent before the value follows the knob.
  QObject::connect(&slider, &QSlider::actionTriggered, receiver(), [this] {
    widget().setValue(widget().sliderPosition());
    send(action_, this);
  });
}

int SliderAdapter::intValue() const {
  return widget().value();
}

void SliderAdapter::setFloatValue(float value) {
  if (!std::isnan(value)) {
    widget().setValue(static_cast<int>(std::clamp(value, static_cast<float>(widget().minimum()),
                                                  static_cast<float>(widget().maximum()))));
  }
}

void SliderAdapter::setAction(Action action) {
  action_ = std::move(action);
}

}  // namespace ui::qt

#include "skins/qt/SliderAdapter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ui::qt {

SliderAdapter::SliderAdapter(QSlider& slider) : Adapter(slider) {
  // Emitted for the user's drag, wheel or key, before the value follows the slider position.
  QObject::connect(&slider, &QSlider::actionTriggered, receiver(), [this] {
    changeTo(widget().sliderPosition());
    send(action_, this);
  });
  // Assistive tools change only the value.
  QObject::connect(&slider, &QSlider::valueChanged, receiver(), [this] {
    if (!changing_) {
      send(action_, this);
    }
  });
}

int SliderAdapter::intValue() const {
  return widget().value();
}

void SliderAdapter::setFloatValue(float value) {
  if (!std::isnan(value)) {
    changeTo(static_cast<int>(std::clamp(value, static_cast<float>(widget().minimum()),
                                         static_cast<float>(widget().maximum()))));
  }
}

void SliderAdapter::changeTo(int value) {
  changing_ = true;
  widget().setValue(value);
  changing_ = false;
}

void SliderAdapter::setAction(Action action) {
  action_ = std::move(action);
}

}  // namespace ui::qt

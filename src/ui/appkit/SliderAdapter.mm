#include "ui/appkit/SliderAdapter.h"

namespace ui::appkit {

int SliderAdapter::intValue() const {
  return static_cast<int>([control() doubleValue]);
}

void SliderAdapter::setFloatValue(float value) {
  [control() setFloatValue:value];
}

}  // namespace ui::appkit

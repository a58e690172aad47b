#include "skins/appkit/SliderAdapter.h"

#include "skins/appkit/ValueSlider.h"

namespace ui::appkit {

int SliderAdapter::intValue() const {
  return wholePosition(control());
}

void SliderAdapter::setFloatValue(float value) {
  [control() setFloatValue:value];
}

}  // namespace ui::appkit

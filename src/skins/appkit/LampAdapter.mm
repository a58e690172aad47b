#include "skins/appkit/LampAdapter.h"

namespace ui::appkit {

namespace {

constexpr int kLit = 2;

}  // namespace

LampAdapter::LampAdapter(NSLevelIndicator* lamp) : Adapter(lamp) {
  // Not every interface loader sets these, and with a maximum of 0 the lamp would stay dark.
  [lamp setMinValue:0];
  [lamp setMaxValue:kLit];
}

int LampAdapter::intValue() const {
  return [control() intValue];
}

void LampAdapter::setIntValue(int value) {
  [control() setIntValue:value];
  [control() setNeedsDisplay:YES];
}

}  // namespace ui::appkit

#include "skins/appkit/LampAdapter.h"

namespace ui::appkit {

namespace {

constexpr int kLit = 2;

}  // namespace

LampAdapter::LampAdapter(NSLevelIndicator* lamp) : Adapter(lamp) {
  // Not every loader of interface files sets these; a maximum of 0 would keep the lamp dark.
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

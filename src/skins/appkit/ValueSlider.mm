#include "skins/appkit/ValueSlider.h"

@interface Velk_ValueSlider (Display)
- (void)showValue;
@end

@implementation Velk_ValueSlider

@synthesize valueField = _valueField;

- (void)setFloatValue:(float)value {
  [super setFloatValue:value];
  [self showValue];
}

- (BOOL)sendAction:(SEL)action to:(id)target {
  [self showValue];
  return [super sendAction:action to:target];
}

- (void)showValue {
  [_valueField setIntegerValue:ui::appkit::wholePosition(self)];
}

@end

namespace ui::appkit {

int wholePosition(NSSlider* slider) {
  const double value = [slider doubleValue];
  const double lowest = [slider minValue];
  const double highest = [slider maxValue];
  // Written so that a NaN, for which every comparison is false, gives the lowest position.
  const double position = value > lowest ? (value < highest ? value : highest) : lowest;
  return static_cast<int>(position);
}

}  // namespace ui::appkit

#include "ui/appkit/ValueSlider.h"

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
  [_valueField setIntegerValue:static_cast<NSInteger>([self doubleValue])];
}

@end

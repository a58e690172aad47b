#pragma once

#import <AppKit/AppKit.h>

/// A slider that shows its position as a whole number in a text field.
@interface Velk_ValueSlider : NSSlider {
  NSTextField* _valueField;
}
@property(nonatomic, assign) IBOutlet NSTextField* valueField;
@end

namespace ui::appkit {

/// The slider's position, clamped to its range and truncated toward zero; NaN gives the minimum.
int wholePosition(NSSlider* slider);

}  // namespace ui::appkit

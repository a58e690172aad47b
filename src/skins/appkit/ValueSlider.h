#pragma once

#import <AppKit/AppKit.h>

/// A slider that shows its position, as a whole number, in a field beside it.
@interface Velk_ValueSlider : NSSlider {
  NSTextField* _valueField;
}
@property(nonatomic, assign) IBOutlet NSTextField* valueField;
@end

namespace ui::appkit {

/// The slider's position truncated toward zero; what is no number counts as the lowest.
int wholePosition(NSSlider* slider);

}  // namespace ui::appkit

#pragma once

#import <AppKit/AppKit.h>

/// A slider that shows its position, as a whole number, in a field beside it.
@interface Velk_ValueSlider : NSSlider {
  NSTextField* _valueField;
}
@property(nonatomic, assign) IBOutlet NSTextField* valueField;
@end

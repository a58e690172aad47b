#pragma once

#import <AppKit/AppKit.h>

/// A round lamp: a ring while its value is 0, filled and marked with an upright bar from 2 on, so
/// that more than the colour tells. Its values go from 0 to 2.
@interface Velk_Lamp : NSLevelIndicator
@end

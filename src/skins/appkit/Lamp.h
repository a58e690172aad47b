#pragma once

#import <AppKit/AppKit.h>

/// A round lamp with values from 0 to 2: a ring below 2; at 2 it is filled and marked with an
/// upright bar, so that colour is not the only sign.
@interface Velk_Lamp : NSLevelIndicator
@end

#pragma once

#import <AppKit/AppKit.h>

#include "audio_unit/Framework.h"

#ifdef __APPLE__
#import <AudioUnit/AUCocoaUIView.h>
#else
/// What a host asks of a view bundle's principal class.
@protocol AUCocoaUIBase
- (unsigned)interfaceVersion;
/// A view bound to the unit, autoreleased, or null; the log says why. The size is a wish.
- (NSView*)uiViewForAudioUnit:(AudioUnit)unit withSize:(NSSize)size;
@end
#endif

#pragma once

#import <AppKit/AppKit.h>

#include "audio_unit/Framework.h"

#ifdef __APPLE__
#import <AudioUnit/AUCocoaUIView.h>
#else
/// The interface of a view bundle's principal class, as hosts use it.
@protocol AUCocoaUIBase
- (unsigned)interfaceVersion;
/// Returns a view bound to the unit, autoreleased, or nil, in which case the log says why. The size
/// is only a preference.
- (NSView*)uiViewForAudioUnit:(AudioUnit)unit withSize:(NSSize)size;
@end
#endif

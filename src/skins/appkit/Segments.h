#pragma once

#ifdef GNUSTEP

#import <AppKit/AppKit.h>

namespace ui::appkit {

/// Gives segmented controls their labels, tags and selection again, which the toolkit loses when it
/// loads an interface file, and segments of equal width. Controls and file are matched by their
/// order. `file` is the interface file itself.
void restoreSegments(NSArray* topLevelObjects, NSString* file);

}  // namespace ui::appkit

#endif

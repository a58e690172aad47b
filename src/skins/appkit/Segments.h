#pragma once

#ifdef GNUSTEP

#import <AppKit/AppKit.h>

namespace ui::appkit {

/// Restores the labels, tags and selection of segmented controls, which GNUstep loses when it loads
/// an interface file, and makes their segments equally wide. Reads them from `file`, the interface
/// file itself, in which the controls must be in the same order.
void restoreSegments(NSArray* topLevelObjects, NSString* file);

}  // namespace ui::appkit

#endif

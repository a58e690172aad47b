#pragma once

#ifdef GNUSTEP

#import <AppKit/AppKit.h>

namespace ui::appkit {

/// Moves and resizes tab views so that their pages are where the interface file has them: GNUstep
/// leaves less space around a page than AppKit, for which the file is drawn.
void placePages(NSArray* topLevelObjects);

}  // namespace ui::appkit

#endif

#pragma once

#ifdef GNUSTEP

#import <AppKit/AppKit.h>

namespace ui::appkit {

/// Moves tab views so that their pages are where the interface file has them: here a page begins
/// closer to the tabs and to the edges than on the system that the file is drawn for.
void placePages(NSArray* topLevelObjects);

}  // namespace ui::appkit

#endif

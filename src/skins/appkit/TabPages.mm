#include "skins/appkit/TabPages.h"

#ifdef GNUSTEP

#include "skins/appkit/ViewTree.h"

namespace ui::appkit {

namespace {

// AppKit's margins around the page of a tab view with tabs and a border, in points.
constexpr CGFloat kSides = 10;
constexpr CGFloat kBelow = 13;
constexpr CGFloat kAbove = 33;

void placePages(NSTabView* tabs) {
  const NSRect frame = [tabs frame];
  const NSRect wanted = NSMakeRect(NSMinX(frame) + kSides, NSMinY(frame) + kBelow,
                                   NSWidth(frame) - 2 * kSides, NSHeight(frame) - kBelow - kAbove);
  const NSRect now = [tabs contentRect];
  const CGFloat below = [tabs isFlipped] ? NSHeight(frame) - NSMaxY(now) : NSMinY(now);
  [tabs setFrame:NSMakeRect(NSMinX(wanted) - NSMinX(now), NSMinY(wanted) - below,
                            NSWidth(wanted) + NSWidth(frame) - NSWidth(now),
                            NSHeight(wanted) + NSHeight(frame) - NSHeight(now))];
}

}  // namespace

void placePages(NSArray* topLevelObjects) {
  forEachViewOf(topLevelObjects, [](NSView* view) {
    if ([view isKindOfClass:[NSTabView class]] &&
        [static_cast<NSTabView*>(view) tabViewType] == NSTopTabsBezelBorder) {
      placePages(static_cast<NSTabView*>(view));
    }
  });
}

}  // namespace ui::appkit

#endif

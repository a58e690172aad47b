#pragma once

#import <AppKit/AppKit.h>

namespace ui::appkit {

/// Calls `visit` for the view and everything in it, including the hidden pages of tab views, in the
/// order in which an interface file lists them.
template <class Visit>
void forEachView(NSView* view, const Visit& visit) {
  visit(view);
  if ([view isKindOfClass:[NSTabView class]]) {
    auto* tabs = static_cast<NSTabView*>(view);
    for (NSInteger index = 0; index < [tabs numberOfTabViewItems]; ++index) {
      forEachView([[tabs tabViewItemAtIndex:index] view], visit);
    }
    return;
  }
  NSArray* subviews = [view subviews];
  for (NSUInteger index = 0; index < [subviews count]; ++index) {
    forEachView(static_cast<NSView*>([subviews objectAtIndex:index]), visit);
  }
}

/// Does the same for every view and window among an interface file's top-level objects.
template <class Visit>
void forEachViewOf(NSArray* topLevelObjects, const Visit& visit) {
  for (NSUInteger index = 0; index < [topLevelObjects count]; ++index) {
    const id object = [topLevelObjects objectAtIndex:index];
    if ([object isKindOfClass:[NSWindow class]]) {
      forEachView([object contentView], visit);
    } else if ([object isKindOfClass:[NSView class]]) {
      forEachView(static_cast<NSView*>(object), visit);
    }
  }
}

}  // namespace ui::appkit

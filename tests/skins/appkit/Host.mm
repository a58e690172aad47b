#include "skins/appkit/Host.h"

#include <stdexcept>

#include "skins/appkit/Strings.h"
#include "skins/appkit/ViewTree.h"
#include "ui/KeyPositions.h"

namespace appkit_test {

namespace {

using ui::appkit::nsString;
using ui::appkit::Retained;
using ui::appkit::utf8;

NSEvent* mouseEvent(NSEventType type, NSWindow* window, NSPoint place) {
  return [NSEvent mouseEventWithType:type
                            location:place
                       modifierFlags:0
                           timestamp:0
                        windowNumber:[window windowNumber]
                             context:[window graphicsContext]
                         eventNumber:0
                          clickCount:1
                            pressure:1];
}

/// The X11 key code for a position code.
std::uint16_t nativeKeyCode(std::uint16_t positionCode) {
  for (unsigned int code = 9; code < 256; ++code) {
    if (ui::positionCodeForX11(code) == positionCode) {
      return static_cast<std::uint16_t>(code);
    }
  }
  return 0;
}

NSPoint middle(NSRect rect) {
  return NSMakePoint(NSMidX(rect), NSMidY(rect));
}

}  // namespace

NSBundle* bundle() {
  static NSBundle* const loaded = [] {
    NSBundle* bundle = [[NSBundle bundleWithPath:nsString(VELK_BUNDLE)] retain];
    if (![bundle load]) {
      throw std::runtime_error("the bundle cannot be loaded");
    }
    return bundle;
  }();
  return loaded;
}

id<AUCocoaUIBase> makeFactory() {
  return [[[[bundle() principalClass] alloc] init] autorelease];
}

Host::Host(AudioUnit unit)
    : window_(Retained<NSWindow*>::adopt([[NSWindow alloc]
          initWithContentRect:NSMakeRect(100, 300, 640, 420)
                    styleMask:NSTitledWindowMask
                      backing:NSBackingStoreBuffered
                        defer:NO])) {
  [window_.get() setReleasedWhenClosed:NO];
  [window_.get() setTitle:@"Host"];
  NSView* container = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 640, 420)] autorelease];
  [[window_.get() contentView] addSubview:container];
  [window_.get() makeKeyAndOrderFront:nil];
  NSView* view = [makeFactory() uiViewForAudioUnit:unit withSize:NSMakeSize(0, 0)];
  if (view == nil) {
    throw std::runtime_error("the factory gives no view");
  }
  view_ = Retained<NSView*>(view);
  [container addSubview:view];
}

Host::~Host() {
  removeFromSuperview();
  [window_.get() orderOut:nil];
}

id Host::outlet(std::string_view name) const {
  constexpr std::string_view kOfView = "view.";
  const std::string_view path = name.starts_with(kOfView) ? name.substr(kOfView.size()) : name;
  const id found = [view_.get() valueForKeyPath:nsString(path)];
  if (found == nil) {
    throw std::out_of_range("no outlet is named " + std::string(name));
  }
  return found;
}

NSButton* Host::buttonWithTag(int tag) const {
  NSButton* found = nil;
  ui::appkit::forEachView(view_.get(), [&](NSView* view) {
    if (found == nil && [view isKindOfClass:[NSButton class]] && [view tag] == tag) {
      found = static_cast<NSButton*>(view);
    }
  });
  if (found == nil) {
    throw std::out_of_range("no button has the tag " + std::to_string(tag));
  }
  return found;
}

NSButton* Host::buttonWithTitle(NSView* content, std::string_view title) {
  NSButton* found = nil;
  ui::appkit::forEachView(content, [&](NSView* view) {
    if (found == nil && [view isKindOfClass:[NSButton class]] &&
        utf8([static_cast<NSButton*>(view) title]) == title) {
      found = static_cast<NSButton*>(view);
    }
  });
  if (found == nil) {
    throw std::out_of_range("no button has the title " + std::string(title));
  }
  return found;
}

void Host::click(NSButton* button) {
  click(button, middle([button bounds]));
}

void Host::click(NSView* view, NSPoint point) {
  drag(view, point, point);
}

void Host::drag(NSView* view, NSPoint from, NSPoint to) {
  NSWindow* window = [view window];
  if (![window isKeyWindow]) {
    // The first click into a window would only bring it to the front.
    [window makeKeyWindow];
  }
  // Some views lay out their contents only when they are drawn.
  [window displayIfNeeded];
  const NSPoint start = [view convertPoint:from toView:nil];
  const NSPoint end = [view convertPoint:to toView:nil];
  [NSApp postEvent:mouseEvent(NSLeftMouseDown, window, start) atStart:NO];
  if (!NSEqualPoints(start, end)) {
    [NSApp postEvent:mouseEvent(NSLeftMouseDragged, window, end) atStart:NO];
  }
  [NSApp postEvent:mouseEvent(NSLeftMouseUp, window, end) atStart:NO];
}

void Host::clickSegment(NSSegmentedControl* control, int segment) {
  // The segments are of equal width.
  const CGFloat width = NSWidth([control bounds]) / static_cast<CGFloat>([control segmentCount]);
  click(control,
        NSMakePoint((static_cast<CGFloat>(segment) + 0.5) * width, NSMidY([control bounds])));
}

void Host::clickTab(NSTabView* tabs, int index) {
  [[tabs window] displayIfNeeded];
  NSTabViewItem* wanted = [tabs tabViewItemAtIndex:index];
  const NSRect bounds = [tabs bounds];
  for (CGFloat y = 1; y < NSHeight(bounds); y += 4) {
    for (CGFloat x = 1; x < NSWidth(bounds); x += 8) {
      if ([tabs tabViewItemAtPoint:NSMakePoint(x, y)] == wanted) {
        click(tabs, NSMakePoint(x + 8, y + 4));
        return;
      }
    }
  }
  throw std::out_of_range("the tab is not to be seen");
}

void Host::pickItem(NSPopUpButton* popUp, int index) {
  if ([popUp isEnabled]) {
    [[popUp menu] performActionForItemAtIndex:index];
  }
}

void Host::dragSlider(NSSlider* slider, double value) {
  [slider setDoubleValue:value];
  [slider sendAction:[slider action] to:[slider target]];
}

void Host::pressKey(std::uint16_t keyCode, NSString* characters) {
  [window() makeFirstResponder:view()];
  typeKey(keyCode, characters);
}

void Host::typeKey(std::uint16_t keyCode, NSString* characters) {
  [window() sendEvent:[NSEvent keyEventWithType:NSKeyDown
                                             location:NSZeroPoint
                                        modifierFlags:0
                                            timestamp:0
                                         windowNumber:[window() windowNumber]
                                              context:nil
                                           characters:characters
                          charactersIgnoringModifiers:characters
                                            isARepeat:NO
                                              keyCode:nativeKeyCode(keyCode)]];
}

void Host::moveToOtherSuperview() {
  NSView* other = [[[NSView alloc] initWithFrame:[[window() contentView] bounds]] autorelease];
  [[window() contentView] addSubview:other];
  [other addSubview:view()];
}

void Host::removeFromSuperview() {
  [view() removeFromSuperview];
}

}  // namespace appkit_test

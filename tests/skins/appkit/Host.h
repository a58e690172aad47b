#pragma once

#import <AppKit/AppKit.h>

#include <chrono>
#include <string>
#include <string_view>

#include "audio_unit/Framework.h"
#include "skins/appkit/AUCocoaUIView.h"
#include "skins/appkit/Retained.h"

namespace appkit_test {

/// The bundle as a host has it: loaded once, and kept.
NSBundle* bundle();
/// A new factory, autoreleased.
id<AUCocoaUIBase> makeFactory();

/// A host with a view of the bundle's factory in a window. Made, used and destroyed on the main
/// thread. What a user does is done with events that go through the window.
class Host {
 public:
  explicit Host(AudioUnit unit);
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  NSView* view() const { return view_.get(); }
  NSWindow* window() const { return window_.get(); }

  /// By the outlet that it fills: "view.encoderPopup". An unknown name throws.
  id outlet(std::string_view name) const;
  /// The first button below the view, pages that do not show included, with that tag.
  NSButton* buttonWithTag(int tag) const;
  /// The first button of a sheet with that title.
  static NSButton* buttonWithTitle(NSView* content, std::string_view title);

  /// The left mouse button pressed and released in the middle of the button. A click is an event:
  /// the application takes it when its run loop runs.
  static void click(NSButton* button);
  /// The same at a point of a view.
  static void click(NSView* view, NSPoint point);
  /// Pressed at a point of the view and released at another.
  static void drag(NSView* view, NSPoint from, NSPoint to);
  static void clickSegment(NSSegmentedControl* control, int segment);
  static void clickTab(NSTabView* tabs, int index);
  static void pickItem(NSPopUpButton* popUp, int index);
  static void dragSlider(NSSlider* slider, double value);
  /// A press of the key at that position (virtual key code), whatever has the focus.
  void typeKey(std::uint16_t keyCode, NSString* characters = @"");
  /// The same while the view has it.
  void pressKey(std::uint16_t keyCode, NSString* characters = @"");

  void moveToOtherSuperview();
  void removeFromSuperview();

 private:
  ui::appkit::Retained<NSWindow*> window_;
  ui::appkit::Retained<NSView*> view_;
};

}  // namespace appkit_test

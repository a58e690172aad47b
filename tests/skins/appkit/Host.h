#pragma once

#import <AppKit/AppKit.h>

#include <chrono>
#include <string>
#include <string_view>

#include "audio_unit/Framework.h"
#include "skins/appkit/AUCocoaUIView.h"
#include "skins/appkit/Retained.h"

namespace appkit_test {

/// The bundle, loaded as by a host: once, and never unloaded.
NSBundle* bundle();
/// A new factory, autoreleased.
id<AUCocoaUIBase> makeFactory();

/// A window with a view made by the bundle's factory. User input is sent as events through the
/// window. Main thread only.
class Host {
 public:
  explicit Host(AudioUnit unit);
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host();

  NSView* view() const { return view_.get(); }
  NSWindow* window() const { return window_.get(); }

  /// The object that fills an outlet such as "view.encoderPopup". An unknown name throws.
  id outlet(std::string_view name) const;
  /// The first button in the view, including hidden pages, with that tag. Throws if there is none.
  NSButton* buttonWithTag(int tag) const;
  /// The first button in a sheet's content with that title. Throws if there is none.
  static NSButton* buttonWithTitle(NSView* content, std::string_view title);

  /// Clicks the middle of the button. Clicks and drags are posted as events; the application
  /// handles them when its run loop runs.
  static void click(NSButton* button);
  /// Clicks a point of the view.
  static void click(NSView* view, NSPoint point);
  /// Presses the mouse button at one point of the view and releases it at another.
  static void drag(NSView* view, NSPoint from, NSPoint to);
  static void clickSegment(NSSegmentedControl* control, int segment);
  static void clickTab(NSTabView* tabs, int index);
  static void pickItem(NSPopUpButton* popUp, int index);
  static void dragSlider(NSSlider* slider, double value);
  /// Presses the key at that position (virtual key code); the focus stays where it is.
  void typeKey(std::uint16_t keyCode, NSString* characters = @"");
  /// Does the same after giving the view the focus.
  void pressKey(std::uint16_t keyCode, NSString* characters = @"");

  void moveToOtherSuperview();
  void removeFromSuperview();

 private:
  ui::appkit::Retained<NSWindow*> window_;
  ui::appkit::Retained<NSView*> view_;
};

}  // namespace appkit_test

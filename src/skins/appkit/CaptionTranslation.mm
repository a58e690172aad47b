#include "skins/appkit/CaptionTranslation.h"

#include "skins/appkit/Strings.h"
#include "skins/appkit/ViewTree.h"
#include "ui/Captions.h"

namespace ui::appkit {

namespace {

class Translator {
 public:
  explicit Translator(const Bundle& bundle) : bundle_(bundle) {}

  void translate(NSView* view) const {
    if ([view isKindOfClass:[NSPopUpButton class]]) {
      translateItems(static_cast<NSPopUpButton*>(view));
    } else if ([view isKindOfClass:[NSButton class]]) {
      auto* button = static_cast<NSButton*>(view);
      [button setTitle:translated([button title])];
    } else if ([view isKindOfClass:[NSTextField class]]) {
      translateText(static_cast<NSTextField*>(view));
    } else if ([view isKindOfClass:[NSSegmentedControl class]]) {
      translateSegments(static_cast<NSSegmentedControl*>(view));
    } else if ([view isKindOfClass:[NSTabView class]]) {
      translateTabs(static_cast<NSTabView*>(view));
    }
    if ([[view toolTip] length] > 0) {
      [view setToolTip:translated([view toolTip])];
    }
    translateAccessibleLabel(view);
  }

  NSString* translated(NSString* key) const { return nsString(caption(bundle_, utf8(key))); }

 private:
  void translateText(NSTextField* field) const {
    // A field with a formatter shows a number, not a caption.
    if ([[field cell] formatter] == nil) {
      [field setStringValue:translated([field stringValue])];
    }
  }

  void translateItems(NSPopUpButton* button) const {
    for (NSInteger index = 0; index < [button numberOfItems]; ++index) {
      NSMenuItem* item = [button itemAtIndex:index];
      if (![item isSeparatorItem]) {
        [item setTitle:translated([item title])];
      }
    }
    [button synchronizeTitleAndSelectedItem];
  }

  void translateSegments(NSSegmentedControl* control) const {
    for (NSInteger segment = 0; segment < [control segmentCount]; ++segment) {
      [control setLabel:translated([control labelForSegment:segment]) forSegment:segment];
    }
  }

  void translateTabs(NSTabView* tabs) const {
    for (NSInteger index = 0; index < [tabs numberOfTabViewItems]; ++index) {
      NSTabViewItem* item = [tabs tabViewItemAtIndex:index];
      [item setLabel:translated([item label])];
    }
  }

  void translateAccessibleLabel(NSView* view) const {
#ifndef GNUSTEP
    // Older files keep a control's label in its cell, newer ones in the control.
    NSString* label = [view accessibilityLabel];
    if ([label length] > 0) {
      [view setAccessibilityLabel:nsString(captionParts(bundle_, utf8(label)))];
    }
#else
    static_cast<void>(view);
#endif
  }

  const Bundle& bundle_;
};

}  // namespace

void translateCaptions(NSArray* topLevelObjects, const Bundle& bundle) {
  const Translator translator(bundle);
  forEachViewOf(topLevelObjects, [&](NSView* view) { translator.translate(view); });
  for (NSUInteger index = 0; index < [topLevelObjects count]; ++index) {
    const id object = [topLevelObjects objectAtIndex:index];
    if ([object isKindOfClass:[NSWindow class]]) {
      [object setTitle:translator.translated([object title])];
    }
  }
}

}  // namespace ui::appkit

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSVersion.h>
#include <gtest/gtest.h>

#include "skins/appkit/MainThread.h"

/// Where GNUstep differs from the system that the skin is written for. If a test fails here, the
/// difference is gone, and so is the reason for a workaround or an omission elsewhere.

@interface VelkTest_Moving : NSView {
  int _removals;
}
- (int)removals;
@end

@implementation VelkTest_Moving

- (void)viewWillMoveToSuperview:(NSView*)superview {
  _removals += superview == nil ? 1 : 0;
}

- (int)removals {
  return _removals;
}

@end

namespace {

using appkit_test::onMain;

TEST(GNUstep, RemovesAViewFromItsSuperviewBeforeItAddsItToAnother) {
  onMain([] {
    NSView* one = [[[NSView alloc] init] autorelease];
    NSView* other = [[[NSView alloc] init] autorelease];
    VelkTest_Moving* view = [[[VelkTest_Moving alloc] init] autorelease];
    [one addSubview:view];
    const int before = [view removals];
    [other addSubview:view];
    EXPECT_EQ([view removals] - before, 1)
        << "Teardown.AViewThatMovesToAnotherSuperviewGoesOnAsBefore can be played now";
  });
}

TEST(GNUstep, OpensNoHelpBooks) {
  onMain([] {
    // The help manager has only the method that the tests' stand-in adds.
    EXPECT_FALSE([NSHelpManager instancesRespondToSelector:@selector(registerBooksInBundle:)]);
  });
}

TEST(GNUstep, ShowsASheetOnlyWhileTheCallLastsBeforeVersion32) {
  onMain([] {
    const bool canOutlastTheCall = [NSWindow
        instancesRespondToSelector:NSSelectorFromString(@"beginSheet:completionHandler:")];
    EXPECT_EQ(canOutlastTheCall, GNUSTEP_GUI_MINOR_VERSION >= 32);
  });
}

}  // namespace

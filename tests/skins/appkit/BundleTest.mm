#include <dlfcn.h>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <optional>

#include "skins/appkit/Host.h"
#include "skins/appkit/MainThread.h"
#include "skins/appkit/Strings.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/LogCapture.h"
#include "view/main/Notifications.h"

namespace {

using appkit_test::onMain;
using ui::appkit::utf8;

TEST(Bundle, HasTheFactoryAsItsPrincipalClass) {
  onMain([] {
    Class principal = [appkit_test::bundle() principalClass];
    EXPECT_EQ(utf8(NSStringFromClass(principal)), "Velk_AUAACConverterFactory");
    EXPECT_TRUE([principal conformsToProtocol:@protocol(AUCocoaUIBase)]);
    const id<AUCocoaUIBase> factory = appkit_test::makeFactory();
    EXPECT_EQ([factory interfaceVersion], 0U);
    EXPECT_EQ(utf8([static_cast<id>(factory) description]), "Norda AAC Dravo Converter");
  });
}

TEST(Bundle, GivesAViewOfTheClassThatHostsKnow) {
  onMain([] {
    fakes::CallLog calls;
    fakes::FakeConverter unit(calls);
    appkit_test::Host host(&unit);
    EXPECT_EQ(utf8(NSStringFromClass([host.view() class])), "Velk_AUAACConverterCustomView");
    EXPECT_EQ(NSWidth([host.view() frame]), 560);
    EXPECT_EQ(NSHeight([host.view() frame]), 195);
    EXPECT_EQ([host.window() firstResponder], host.view());
    for (const auto& [outlet, name] :
         {std::pair(@"auditionController", "Velk_AACEncodingViewAuditionController"),
          std::pair(@"listeningTestController", "Velk_AACEncodingViewListeningTestController"),
          std::pair(@"settingsController", "Velk_AACEncodingViewSettingsController"),
          std::pair(@"keyController", "Velk_AACEncodingViewKeyController")}) {
      EXPECT_EQ(utf8(NSStringFromClass([[host.view() valueForKey:outlet] class])), name);
    }
  });
}

TEST(Bundle, DoesNotRetainTheViewThatItReturns) {
  onMain([] {
    const id factory = appkit_test::makeFactory();
    fakes::CallLog calls;
    fakes::FakeConverter unit(calls);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    EXPECT_NE([factory uiViewForAudioUnit:&unit withSize:NSMakeSize(1, 1)], nil);
    EXPECT_EQ([factory valueForKey:@"uiFreshlyLoadedView"], nil);
    [pool drain];
    // The view has been destroyed, and with it its listener.
    calls.clear();
    unit.hostSetsParameter(velk::kConverterParam_Format, 1);
    EXPECT_EQ(calls.count("unit."), 0U);
  });
}

TEST(Bundle, GivesNoViewForAUnitThatCannotBeReadAndSaysWhy) {
  onMain([] {
    const id factory = appkit_test::makeFactory();
    fakes::CallLog calls;
    fakes::FakeConverter unit(calls);
    unit.failAlways(fakes::UnitCall::GetParameter, velk::kConverterParam_Format, -10877);
    const fakes::LogCapture log(calls);
    EXPECT_EQ([factory uiViewForAudioUnit:&unit withSize:NSMakeSize(1, 1)], nil);
    EXPECT_THAT(log.lines(), testing::Contains(testing::StartsWith("Unable to bind the view")));
  });
}

TEST(Bundle, ExportsTheNamesOfItsNotifications) {
  onMain([] {
    appkit_test::bundle();
    void* code = dlopen(VELK_BUNDLE "/Velk_NordaAACConverter", RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(code, nullptr) << dlerror();
    const std::pair<const char*, std::string_view> names[] = {
        {"monitorSourceActionPerformedNotification",
         velk::monitorSourceActionPerformedNotification},
        {"monitorEncodedActionPerformedNotification",
         velk::monitorEncodedActionPerformedNotification},
        {"clearClipActionPerformedNotification", velk::clearClipActionPerformedNotification},
        {"listeningTestMonitorSourceActionPerformedNotification",
         velk::listeningTestMonitorSourceActionPerformedNotification},
        {"listeningTestMonitorAActionPerformedNotification",
         velk::listeningTestMonitorAActionPerformedNotification},
        {"listeningTestMonitorBActionPerformedNotification",
         velk::listeningTestMonitorBActionPerformedNotification},
        {"listeningTestChooseAActionPerformedNotification",
         velk::listeningTestChooseAActionPerformedNotification},
        {"listeningTestChooseBActionPerformedNotification",
         velk::listeningTestChooseBActionPerformedNotification},
        {"auAACSourceSelectionChangedNotification", velk::auAACSourceSelectionChangedNotification},
        {"auAACResetStatsNotification", velk::auAACResetStatsNotification},
        {"auAACListeningTestStateChangedNotification",
         velk::auAACListeningTestStateChangedNotification}};
    for (const auto& [symbol, text] : names) {
      const auto* name = static_cast<NSString* const*>(dlsym(code, symbol));
      ASSERT_NE(name, nullptr) << symbol;
      EXPECT_EQ(utf8(*name), text);
    }
    dlclose(code);
  });
}

/// Counts notifications as a host would, with Foundation's own means.
class HostObserver {
 public:
  HostObserver(NSString* name, id object);
  ~HostObserver();
  int count() const;

 private:
  id observer_;
};

}  // namespace

@interface VelkTest_Observer : NSObject {
  int _count;
}
- (void)receive:(NSNotification*)notification;
- (int)count;
@end

@implementation VelkTest_Observer

- (void)receive:(NSNotification*)notification {
  ++_count;
}

- (int)count {
  return _count;
}

@end

namespace {

HostObserver::HostObserver(NSString* name, id object)
    : observer_([[VelkTest_Observer alloc] init]) {
  [[NSNotificationCenter defaultCenter] addObserver:observer_
                                           selector:@selector(receive:)
                                               name:name
                                             object:object];
}

HostObserver::~HostObserver() {
  [[NSNotificationCenter defaultCenter] removeObserver:observer_];
  [observer_ release];
}

int HostObserver::count() const {
  return [static_cast<VelkTest_Observer*>(observer_) count];
}

TEST(Bundle, PostsNotificationsAboutTheViewToEveryObserver) {
  fakes::CallLog calls;
  std::optional<fakes::FakeConverter> unit;
  std::optional<appkit_test::Host> host;
  std::optional<appkit_test::Host> other;
  std::optional<HostObserver> observer;
  std::optional<HostObserver> otherObserver;
  onMain([&] {
    unit.emplace(calls);
    host.emplace(&*unit);
    other.emplace(&*unit);
    observer.emplace(@"aac_clearClipActionPerformedNotification", host->view());
    otherObserver.emplace(@"aac_clearClipActionPerformedNotification", other->view());
    host->pressKey(51);
    EXPECT_EQ(observer->count(), 1);
    EXPECT_EQ(otherObserver->count(), 0);
    // A host may post notifications, too.
    unit->statistics.fill({1, 1, 1, 1});
    [[NSNotificationCenter defaultCenter]
        postNotificationName:@"aac_clearClipActionPerformedNotification"
                      object:host->view()];
    EXPECT_EQ(unit->statistics[0].mSampleClipCount, 0);
    otherObserver.reset();
    observer.reset();
    other.reset();
    host.reset();
  });
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/audition/AuditionPage.h"

namespace audition_test {
namespace {

using fakes::BoundView;
using fakes::FakeConverter;
using fakes::FakeSegmentedControl;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace velk;

constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKey2 = 19;
constexpr std::uint16_t kDeleteKey = 51;

TEST(AuditionPage, StartsSegmentTimerAndHeightInThatOrder) {
  AuditionPage page;
  page.tabs().userClicks(1);
  page.record.calls.clear();
  page.tabs().userClicks(0);
  EXPECT_THAT(page.record.calls.starting("auditionController.", "runLoop.", "timer.", "native."),
              ElementsAre("auditionController.monitorControl.setSelectedSegment 1",
                          "runLoop.scheduledTimer 0.075", "timer.addToMode EventTracking",
                          "timer.addToMode ModalPanel", "native.applyFrameSize 560 x 195"));
}

TEST(AuditionPage, StopsTheTimerBeforeItTakesTheCollapsedHeight) {
  AuditionPage page;
  page.controller().cleanup();
  EXPECT_THAT(page.record.calls.starting("auditionController.", "runLoop.", "timer.", "native."),
              ElementsAre("timer.invalidate", "native.applyFrameSize 560 x 195"));
}

TEST(AuditionPage, SelectsTheMonoPageForEveryChannelCountButTwo) {
  for (const UInt32 channels : {0U, 1U, 3U, 6U, 8U}) {
    AuditionPage page(channels);
    EXPECT_EQ(page.control<fakes::FakeTabView>("monoStereoTabView").indexOfSelectedItem(), 1)
        << channels;
  }
  AuditionPage stereo(2U);
  EXPECT_EQ(stereo.control<fakes::FakeTabView>("monoStereoTabView").indexOfSelectedItem(), 0);
}

TEST(AuditionPage, SelectsTheMeterPageBeforeItIsPrepared) {
  fakes::Record record;
  FakeConverter unit(record.calls);
  BoundView view(record, unit);
  EXPECT_THAT(record.calls.starting("auditionController.monoStereoTabView.", "runLoop."),
              ElementsAre("auditionController.monoStereoTabView.selectItemAtIndex 0",
                          "runLoop.scheduledTimer 0.075"));
}

TEST(AuditionPage, RunsNothingTwiceWhenItIsPreparedTwice) {
  AuditionPage page;
  page.controller().prepare();
  EXPECT_EQ(page.view->toolkit.runLoop.runningTimers(), 1);
  page.record.calls.clear();
  page.poll();
  EXPECT_EQ(page.record.calls.count("unit.getProperty 5302"), 2U);
  page.record.calls.clear();
  page.view->native->pressKey(kKey1);
  EXPECT_EQ(page.record.calls.count("unit.setProperty 5301"), 1U);
  page.advance(60);
  page.controller().cleanup();
  page.record.calls.clear();
  page.advance(1000);
  page.view->native->pressKey(kKey2);
  EXPECT_THAT(page.record.calls.starting("unit."), IsEmpty());
}

TEST(AuditionPage, FollowsAnotherUnitThatTheViewIsBoundTo) {
  AuditionPage page;
  FakeConverter mono(page.record.calls);
  mono.channels = 1;
  mono.monitorSource = 1;
  page.view->view().setAU(&mono);
  EXPECT_EQ(page.control<fakes::FakeTabView>("monoStereoTabView").indexOfSelectedItem(), 1);
  EXPECT_EQ(page.control<FakeSegmentedControl>("monitorControl").selectedSegment(), 0);
  EXPECT_EQ(page.view->toolkit.runLoop.runningTimers(), 1);
  page.view.reset();
}

TEST(AuditionPage, AsksTheUnitBeforeItMovesTheSegmentOnAKey) {
  AuditionPage page;
  page.view->native->pressKey(kKey1);
  EXPECT_THAT(page.record.calls.starting("unit.", "auditionController."),
              ElementsAre("unit.setProperty 5301 = 1",
                          "auditionController.monitorControl.setSelectedSegment 0"));
}

TEST(AuditionPage, WritesNoSegmentWhenTheUserMovedIt) {
  AuditionPage page;
  page.control<FakeSegmentedControl>("monitorControl").userSelects(0);
  EXPECT_THAT(page.record.calls.starting("unit.", "auditionController."),
              ElementsAre("unit.setProperty 5301 = 1"));
}

TEST(AuditionPage, IsBroughtBackInLineByTheNextChangeAfterARefusedKeyCommand) {
  AuditionPage page;
  page.unit.failOnce(UnitCall::SetProperty, kConverterProperty_MonitorSource, -50);
  page.view->native->pressKey(kKey1);
  EXPECT_EQ(page.control<FakeSegmentedControl>("monitorControl").selectedSegment(), 0);
  EXPECT_THAT(page.record.log.lines(),
              ElementsAre("There was an error changing the source to monitor: -50"));
  page.unit.announceChangeOf(kConverterProperty_MonitorSource);
  page.advance(60);
  EXPECT_EQ(page.control<FakeSegmentedControl>("monitorControl").selectedSegment(), 1);
}

TEST(AuditionPage, HidesItsSwitchWithoutTouchingTheSegmentWhenATestStarts) {
  AuditionPage page;
  page.unit.hostSetsProperty(kConverterProperty_ListeningTestActive, 1);
  page.advance(10);
  EXPECT_THAT(page.writes(), ElementsAre("monitorControl.setHidden true"));
}

TEST(AuditionPage, ShowsItsSwitchBeforeTheSegmentWhenATestEnds) {
  AuditionPage page;
  page.unit.hostSetsProperty(kConverterProperty_ListeningTestActive, 1);
  page.advance(10);
  page.record.calls.clear();
  page.unit.hostSetsProperty(kConverterProperty_ListeningTestActive, 0);
  page.advance(10);
  EXPECT_THAT(page.writes(),
              ElementsAre("monitorControl.setHidden false", "monitorControl.setSelectedSegment 1"));
}

TEST(AuditionPage, KeepsItsSwitchAsItWasWhenItIsPrepared) {
  AuditionPage page;
  page.unit.hostSetsProperty(kConverterProperty_ListeningTestActive, 1);
  page.advance(10);
  page.controller().cleanup();
  page.controller().prepare();
  EXPECT_TRUE(page.control<FakeSegmentedControl>("monitorControl").isHidden());
}

TEST(AuditionPage, IgnoresMonitorCommandsAndChangesDuringATest) {
  AuditionPage page;
  page.unit.hostSetsProperty(kConverterProperty_ListeningTestActive, 1);
  page.advance(10);
  page.record.calls.clear();
  page.view->native->pressKey(kKey1);
  page.view->native->pressKey(kKey2);
  page.unit.announceChangeOf(kConverterProperty_MonitorSource);
  page.advance(10);
  EXPECT_THAT(page.record.calls.starting("unit.set", "auditionController."), IsEmpty());
}

TEST(AuditionPage, DoesNotObserveAnythingWhileItIsDormant) {
  AuditionPage page;
  page.tabs().userClicks(1);
  page.record.calls.clear();
  ui::NotificationCenter& center = ui::NotificationCenter::defaultCenter();
  for (const auto name :
       {auAACSourceSelectionChangedNotification, auAACListeningTestStateChangedNotification,
        monitorSourceActionPerformedNotification, monitorEncodedActionPerformedNotification,
        clearClipActionPerformedNotification}) {
    center.post(name, &page.view->view());
  }
  page.advance(1000);
  EXPECT_THAT(page.record.calls.starting("unit.", "auditionController."), IsEmpty());
}

TEST(AuditionPage, HearsOnlyItsOwnView) {
  AuditionPage page;
  FakeConverter otherUnit(page.record.calls);
  BoundView other(page.record, otherUnit);
  page.record.calls.clear();
  other.native->pressKey(kKey1);
  other.native->pressKey(kDeleteKey);
  // Both pages write controls of the same names, so each is looked at by itself.
  EXPECT_EQ(page.unit.monitorSource, 0U);
  EXPECT_EQ(otherUnit.monitorSource, 1U);
  EXPECT_EQ(page.control<FakeSegmentedControl>("monitorControl").selectedSegment(), 1);
  EXPECT_EQ(page.record.calls.count("unit.setProperty 5303"), 1U);
}

TEST(AuditionPage, DoesNotObserveACommandAboutAnotherObject) {
  AuditionPage page;
  const int other = 0;
  ui::NotificationCenter& center = ui::NotificationCenter::defaultCenter();
  center.post(clearClipActionPerformedNotification, &other);
  center.post(clearClipActionPerformedNotification, nullptr);
  center.post(monitorSourceActionPerformedNotification, &other);
  EXPECT_THAT(page.record.calls.starting("unit.", "auditionController."), IsEmpty());
}

TEST(AuditionPage, PollsInEveryStateOfTheRunLoop) {
  for (const auto mode :
       {ui::RunLoopMode::Default, ui::RunLoopMode::EventTracking, ui::RunLoopMode::ModalPanel}) {
    AuditionPage page;
    page.view->toolkit.runLoop.setMode(mode);
    page.poll();
    EXPECT_EQ(page.record.calls.count("unit.getProperty 5302"), 2U) << static_cast<int>(mode);
  }
}

TEST(AuditionPage, LeavesNoTimerAndNoObserverBehindWhenItIsDestroyed) {
  AuditionPage page;
  const void* view = &page.view->view();
  page.view.reset();
  page.record.calls.clear();
  ui::NotificationCenter::defaultCenter().post(clearClipActionPerformedNotification, view);
  EXPECT_THAT(page.record.calls.starting("unit.", "auditionController."), IsEmpty());
}

}  // namespace
}  // namespace audition_test

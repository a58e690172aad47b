#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/behaviour/Stage.h"

namespace {

using behaviour::kSettled;
using behaviour::setStage;
using fakes::FakeConverter;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kMonitor = "auditionController.monitorControl";

TEST(Binding, ShowsTheAuditionPageWithItsDetailsCollapsed) {
  const auto stage = setStage();
  EXPECT_EQ(stage->selectedTab("view.tabView"), 0);
  EXPECT_EQ(stage->height(), 195.0);
  EXPECT_EQ(stage->state("auditionController.showDetailsButton"), 0);
  EXPECT_TRUE(stage->isHidden("auditionController.monoStereoTabView"));
}

TEST(Binding, ShowsTheSignalThatTheUnitPlays) {
  EXPECT_EQ(
      setStage([](FakeConverter& unit) { unit.monitorSource = 0; })->selectedSegment(kMonitor), 1);
  EXPECT_EQ(
      setStage([](FakeConverter& unit) { unit.monitorSource = 1; })->selectedSegment(kMonitor), 0);
}

TEST(Binding, TakesTheEncodedSignalForHeardWhenTheUnitDoesNotSay) {
  const auto stage = setStage([](FakeConverter& unit) {
    unit.monitorSource = 1;
    unit.failAlways(UnitCall::GetProperty, velk::kConverterProperty_MonitorSource, -1);
  });
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
}

TEST(Binding, WritesNothingToTheUnit) {
  const auto stage = setStage();
  EXPECT_THAT(stage->unit().log().starting("unit.set"), IsEmpty());
  EXPECT_THAT(stage->logLines(), IsEmpty());
}

TEST(Binding, ShowsAMonitorChangeThatCameFromElsewhere) {
  const auto stage = setStage();
  stage->unit().hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
  EXPECT_THAT(stage->notifications(), ElementsAre("auAACSourceSelectionChangedNotification"));
  stage->unit().hostSetsProperty(velk::kConverterProperty_MonitorSource, 0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
}

TEST(Binding, KeepsTheMonitoredSignalWhenItCannotBeReadAgain) {
  const auto stage = setStage([](FakeConverter& unit) { unit.monitorSource = 1; });
  stage->unit().failOnce(UnitCall::GetProperty, velk::kConverterProperty_MonitorSource, -1);
  stage->unit().hostSetsProperty(velk::kConverterProperty_MonitorSource, 0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
}

TEST(Binding, PostsAResetThatCameFromElsewhere) {
  const auto stage = setStage();
  stage->unit().hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  stage->advance(kSettled);
  EXPECT_THAT(stage->notifications(), ElementsAre("auAACResetStatsNotification"));
}

TEST(Binding, FollowsATestThatRunsElsewhereButLeavesItsMenuAlone) {
  const auto stage = setStage();
  stage->unit().hostSetsProperty(velk::kConverterProperty_ListeningTestActive, 7);
  stage->advance(kSettled);
  EXPECT_TRUE(stage->isHidden(kMonitor));
  EXPECT_TRUE(stage->isEnabled("view.encoderPopup"));
  EXPECT_THAT(stage->notifications(), ElementsAre("auAACListeningTestStateChangedNotification"));
  stage->unit().hostSetsProperty(velk::kConverterProperty_ListeningTestActive, 0);
  stage->advance(kSettled);
  EXPECT_FALSE(stage->isHidden(kMonitor));
}

TEST(Binding, TakesATestForOverWhenItsStateCannotBeReadAgain) {
  const auto stage = setStage([](FakeConverter& unit) { unit.listeningTestActive = 1; });
  stage->unit().failOnce(UnitCall::GetProperty, velk::kConverterProperty_ListeningTestActive, -1);
  stage->unit().announceChangeOf(velk::kConverterProperty_ListeningTestActive);
  stage->advance(kSettled);
  EXPECT_FALSE(stage->isHidden(kMonitor));
}

TEST(Teardown, AViewThatLeftItsSuperviewHearsAndAsksNothingMore) {
  const auto stage = setStage();
  stage->removeFromSuperview();
  stage->advance(kSettled);
  stage->unit().log().clear();
  const auto titles = stage->itemTitles("view.encoderPopup");
  stage->unit().hostSetsSetting({1, 0, 3});
  stage->unit().hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  stage->advance(kSettled);
  EXPECT_THAT(stage->unit().log().starting("unit."), IsEmpty());
  EXPECT_THAT(stage->notifications(), IsEmpty());
  EXPECT_EQ(stage->itemTitles("view.encoderPopup"), titles);
}

TEST(Teardown, AViewThatMovesToAnotherSuperviewGoesOnAsBefore) {
  const auto stage = setStage();
  stage->moveToOtherSuperview();
  stage->unit().hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
  EXPECT_GT(stage->unit().log().count("unit.getProperty 5302"), 0U);
}

TEST(Teardown, BringsTheViewBackToItsSmallestHeight) {
  const auto stage = setStage();
  stage->click("auditionController.showDetailsButton");
  ASSERT_EQ(stage->height(), 369.0);
  stage->removeFromSuperview();
  EXPECT_EQ(stage->height(), 195.0);
}

TEST(Help, OpensThePageOfTheButtonThatWasClicked) {
  const auto stage = setStage();
  stage->clickHelp(1000);
  stage->clickTab(1);
  stage->clickHelp(1001);
  EXPECT_THAT(stage->openedHelp(), ElementsAre("audition", "listening-test"));
}

}  // namespace

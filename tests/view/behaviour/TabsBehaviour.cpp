#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/behaviour/Stage.h"

namespace {

using behaviour::kSettled;
using behaviour::setStage;
using behaviour::Stage;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kTabs = "view.tabView";
constexpr const char* kMenu = "view.encoderPopup";

void startTest(Stage& stage) {
  stage.clickTab(1);
  stage.click("listeningTestController.aIsSourceButton");
  stage.advance(kSettled);
}

TEST(Tabs, ChangeAtOnceWhileNoTestRuns) {
  const auto stage = setStage();
  stage->clickTab(1);
  EXPECT_EQ(stage->selectedTab(kTabs), 1);
  EXPECT_EQ(stage->height(), 255.0);
  EXPECT_EQ(stage->alertMessage(), "");
  stage->clickTab(0);
  EXPECT_EQ(stage->selectedTab(kTabs), 0);
  EXPECT_EQ(stage->height(), 195.0);
}

TEST(Tabs, OnlyTheAuditionPagePollsTheMeters) {
  const auto stage = setStage();
  stage->clickTab(1);
  stage->advance(kSettled);
  stage->unit().log().clear();
  stage->advance(kSettled);
  EXPECT_EQ(stage->unit().log().count("unit.getProperty 5302"), 0U);
  stage->clickTab(0);
  stage->advance(kSettled);
  EXPECT_GT(stage->unit().log().count("unit.getProperty 5302"), 0U);
}

TEST(Tabs, TheSelectedTabClickedAgainChangesNothing) {
  const auto stage = setStage();
  stage->click("auditionController.showDetailsButton");
  stage->clickTab(0);
  EXPECT_EQ(stage->height(), 369.0);
  EXPECT_EQ(stage->selectedTab(kTabs), 0);
}

TEST(Tabs, AskBeforeARunningTestIsLeft) {
  const auto stage = setStage();
  startTest(*stage);
  stage->clickTab(0);
  EXPECT_EQ(stage->selectedTab(kTabs), 1);
  EXPECT_EQ(stage->alertMessage(),
            "You are currently performing a listening test. Would you like to stop the test?");
}

TEST(Tabs, ResumeKeepsTheTestAndTheTab) {
  const auto stage = setStage();
  startTest(*stage);
  stage->clickTab(0);
  stage->unit().log().clear();
  stage->answerAlert(false);
  stage->advance(kSettled);
  EXPECT_EQ(stage->alertMessage(), "");
  EXPECT_EQ(stage->selectedTab(kTabs), 1);
  EXPECT_EQ(stage->unit().listeningTestActive, 1U);
  EXPECT_THAT(stage->unit().log().starting("unit.set"), IsEmpty());
  stage->clickTab(0);
  EXPECT_NE(stage->alertMessage(), "");
}

TEST(Tabs, StopEndsTheTestWithoutResultsAndChangesTheTab) {
  const auto stage = setStage();
  startTest(*stage);
  stage->clickTab(0);
  stage->answerAlert(true);
  stage->advance(kSettled);
  EXPECT_EQ(stage->unit().listeningTestActive, 0U);
  EXPECT_EQ(stage->selectedTab(kTabs), 0);
  EXPECT_EQ(stage->height(), 195.0);
  EXPECT_FALSE(stage->isSheetOpen("listeningTestController.resultsSheet"));
  EXPECT_FALSE(stage->isHidden("auditionController.monitorControl"));
}

TEST(Tabs, AStopThatTheUnitRefusesKeepsTheTabAndAsksAgain) {
  const auto stage = setStage();
  startTest(*stage);
  stage->clickTab(0);
  stage->unit().failOnce(UnitCall::SetProperty, velk::kConverterProperty_ListeningTestActive, -1);
  stage->answerAlert(true);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedTab(kTabs), 1);
  EXPECT_NE(stage->alertMessage(), "");
  EXPECT_FALSE(stage->isEnabled(kMenu));
}

TEST(Tabs, ATestDisablesTheEncoderMenuUntilItEnds) {
  const auto stage = setStage();
  EXPECT_TRUE(stage->isEnabled(kMenu));
  startTest(*stage);
  EXPECT_FALSE(stage->isEnabled(kMenu));
  stage->click("listeningTestController.endTestButton");
  stage->advance(kSettled);
  EXPECT_TRUE(stage->isEnabled(kMenu));
}

TEST(Tabs, ATestThatTheUnitRefusesIsNoTest) {
  const auto stage = setStage();
  stage->unit().failAlways(UnitCall::SetProperty, velk::kConverterProperty_ListeningTestActive, -1);
  startTest(*stage);
  EXPECT_TRUE(stage->isEnabled(kMenu));
  EXPECT_THAT(stage->logLines(), IsEmpty());
  stage->clickTab(0);
  EXPECT_EQ(stage->selectedTab(kTabs), 0);
}

TEST(Tabs, AMonitorChangeThatTheUnitRefusesIsLogged) {
  const auto stage = setStage();
  stage->unit().failOnce(UnitCall::SetProperty, velk::kConverterProperty_MonitorSource, -10851);
  stage->selectSegment("auditionController.monitorControl", 0);
  EXPECT_THAT(stage->logLines(),
              ElementsAre("There was an error changing the source to monitor: -10851"));
  // Coming back, the page shows what is heard.
  stage->clickTab(1);
  stage->clickTab(0);
  EXPECT_EQ(stage->selectedSegment("auditionController.monitorControl"), 1);
}

TEST(Tabs, AnAlertThatIsOpenAtTheTeardownIsCancelled) {
  const auto stage = setStage();
  startTest(*stage);
  stage->clickTab(0);
  stage->removeFromSuperview();
  EXPECT_EQ(stage->alertMessage(), "");
  EXPECT_EQ(stage->unit().listeningTestActive, 1U);
}

}  // namespace

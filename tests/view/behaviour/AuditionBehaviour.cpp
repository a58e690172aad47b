#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/behaviour/Stage.h"

namespace {

using behaviour::kSettled;
using behaviour::setStage;
using fakes::FakeConverter;
using fakes::UnitCall;
using testing::ElementsAre;
using namespace velk;

constexpr const char* kMonitor = "auditionController.monitorControl";
constexpr const char* kDetailsButton = "auditionController.showDetailsButton";
constexpr const char* kDetailsText = "auditionController.showDetailsText";
constexpr const char* kDetails = "auditionController.monoStereoTabView";

constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKey2 = 19;

TEST(Audition, SwitchesTheConverterWithTheSegment) {
  const auto stage = setStage();
  stage->selectSegment(kMonitor, 0);
  EXPECT_EQ(stage->unit().monitorSource, 1U);
  stage->selectSegment(kMonitor, 1);
  EXPECT_EQ(stage->unit().monitorSource, 0U);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
}

TEST(Audition, ShowsTheRequestedSignalUntilTheNextChangeWhenTheConverterRefusesAKey) {
  const auto stage = setStage();
  stage->unit().failOnce(UnitCall::SetProperty, kConverterProperty_MonitorSource, -50);
  stage->pressKey(kKey1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->unit().monitorSource, 0U);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
  EXPECT_THAT(stage->logLines(),
              ElementsAre("There was an error changing the source to monitor: -50"));
  stage->unit().announceChangeOf(kConverterProperty_MonitorSource);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
}

TEST(Audition, IsBroughtBackInLineAfterARefusalWhenThePageIsShownAgain) {
  const auto stage = setStage();
  stage->unit().failOnce(UnitCall::SetProperty, kConverterProperty_MonitorSource, -50);
  stage->selectSegment(kMonitor, 0);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
  stage->clickTab(1);
  stage->clickTab(0);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
}

TEST(Audition, HidesItsSwitchAndIgnoresTheKeysWhileATestRunsElsewhere) {
  const auto stage = setStage();
  stage->unit().hostSetsProperty(kConverterProperty_ListeningTestActive, 1);
  stage->advance(kSettled);
  EXPECT_TRUE(stage->isHidden(kMonitor));
  stage->pressKey(kKey1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->unit().monitorSource, 0U);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
  stage->unit().hostSetsProperty(kConverterProperty_MonitorSource, 1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
  stage->unit().hostSetsProperty(kConverterProperty_ListeningTestActive, 0);
  stage->advance(kSettled);
  EXPECT_FALSE(stage->isHidden(kMonitor));
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
}

TEST(Audition, HearsNoMonitorKeyWhileTheTestPageIsShown) {
  const auto stage = setStage();
  stage->clickTab(1);
  stage->pressKey(kKey2);
  // The key answered a listening test instead, which plays the source again.
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
  EXPECT_EQ(stage->unit().listeningTestActive, 1U);
}

TEST(Audition, ShowsTheMonoReadingsForEveryChannelCountButTwo) {
  for (const UInt32 channels : {1U, 2U, 6U}) {
    const auto stage = setStage([&](FakeConverter& unit) { unit.channels = channels; });
    EXPECT_EQ(stage->selectedTab(kDetails), channels == 2 ? 0 : 1) << channels;
  }
}

TEST(Details, OpenAndCloseWithTheirButton) {
  const auto stage = setStage();
  EXPECT_EQ(stage->state(kDetailsButton), 0);
  EXPECT_TRUE(stage->isHidden(kDetails));
  EXPECT_EQ(stage->text(kDetailsText), "Show Details");
  stage->click(kDetailsButton);
  EXPECT_EQ(stage->state(kDetailsButton), 1);
  EXPECT_FALSE(stage->isHidden(kDetails));
  EXPECT_EQ(stage->text(kDetailsText), "Hide Details");
  EXPECT_EQ(stage->height(), 369.0);
  stage->click(kDetailsButton);
  EXPECT_EQ(stage->state(kDetailsButton), 0);
  EXPECT_TRUE(stage->isHidden(kDetails));
  EXPECT_EQ(stage->text(kDetailsText), "Show Details");
  EXPECT_EQ(stage->height(), 195.0);
}

}  // namespace

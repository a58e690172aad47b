#include <gtest/gtest.h>

#include "view/behaviour/Stage.h"

namespace {

using behaviour::kSettled;
using behaviour::setStage;

constexpr const char* kDetailsButton = "auditionController.showDetailsButton";
constexpr const char* kDetailsText = "auditionController.showDetailsText";
constexpr const char* kDetails = "auditionController.monoStereoTabView";

TEST(ViewSize, AHostThatAsksForATallViewGetsTheDetailsOnTheNextTurn) {
  const auto stage = setStage();
  const double width = stage->width();
  stage->requestSize(400, 369);
  EXPECT_EQ(stage->height(), 195.0);
  EXPECT_EQ(stage->state(kDetailsButton), 0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->height(), 369.0);
  EXPECT_EQ(stage->width(), width);
  EXPECT_EQ(stage->state(kDetailsButton), 1);
  EXPECT_EQ(stage->text(kDetailsText), "Hide Details");
  EXPECT_FALSE(stage->isHidden(kDetails));
}

TEST(ViewSize, AHostThatAsksForASmallViewIsIgnored) {
  const auto stage = setStage();
  const double width = stage->width();
  for (const double height : {195.0, 194.0, 0.0, -5.0}) {
    stage->requestSize(700, height);
    stage->advance(kSettled);
    EXPECT_EQ(stage->height(), 195.0);
    EXPECT_EQ(stage->width(), width);
  }
  stage->click(kDetailsButton);
  stage->requestSize(700, 195);
  stage->advance(kSettled);
  EXPECT_EQ(stage->height(), 369.0);
}

TEST(ViewSize, TheTestPagesHeightSelectsTheTestPageAndTakesTheWidth) {
  const auto stage = setStage();
  stage->requestSize(600, 255);
  EXPECT_EQ(stage->selectedTab("view.tabView"), 1);
  EXPECT_EQ(stage->height(), 255.0);
  EXPECT_EQ(stage->width(), 600.0);
}

TEST(ViewSize, AHeightJustAboveTheTestPagesMeansTheDetails) {
  const auto stage = setStage();
  stage->requestSize(600, 255.5);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedTab("view.tabView"), 0);
  EXPECT_EQ(stage->height(), 369.0);
}

TEST(ViewSize, ThePageComesBackWithTheHeightOfItsDetails) {
  const auto stage = setStage();
  stage->click(kDetailsButton);
  EXPECT_EQ(stage->height(), 369.0);
  stage->clickTab(1);
  EXPECT_EQ(stage->height(), 255.0);
  EXPECT_EQ(stage->state(kDetailsButton), 1);
  stage->clickTab(0);
  EXPECT_EQ(stage->height(), 369.0);
  stage->click(kDetailsButton);
  EXPECT_EQ(stage->height(), 195.0);
  EXPECT_EQ(stage->text(kDetailsText), "Show Details");
}

TEST(ViewSize, ATallRequestThatWaitsAtTheTeardownIsDropped) {
  const auto stage = setStage();
  stage->requestSize(560, 369);
  stage->removeFromSuperview();
  stage->advance(kSettled);
  EXPECT_EQ(stage->height(), 195.0);
  EXPECT_EQ(stage->state(kDetailsButton), 0);
}

}  // namespace

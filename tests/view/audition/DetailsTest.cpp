#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <variant>

#include "view/audition/AuditionPage.h"

namespace audition_test {
namespace {

using fakes::FakeButton;
using fakes::FakeTabView;
using fakes::FakeTextField;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> heightsAndWrites(const AuditionPage& page) {
  return page.record.calls.starting("auditionController.", "native.applyFrameSize");
}

TEST(Details, AreShownInOrderByTheButtonWhichFollowsNobody) {
  AuditionPage page;
  page.control<FakeButton>("showDetailsButton").userClicks();
  EXPECT_THAT(heightsAndWrites(page),
              ElementsAre("auditionController.monoStereoTabView.setHidden false",
                          "auditionController.showDetailsText.setStringValue Hide Details",
                          "native.applyFrameSize 560 x 369",
                          "auditionController.helpButton.setFrameOrigin 500 7"));
}

TEST(Details, AreHiddenInOrderByTheButton) {
  AuditionPage page;
  page.control<FakeButton>("showDetailsButton").userClicks();
  page.record.calls.clear();
  page.control<FakeButton>("showDetailsButton").userClicks();
  EXPECT_THAT(heightsAndWrites(page),
              ElementsAre("auditionController.monoStereoTabView.setHidden true",
                          "auditionController.showDetailsText.setStringValue Show Details",
                          "native.applyFrameSize 560 x 195",
                          "auditionController.helpButton.setFrameOrigin 500 181"));
}

TEST(Details, TurnTheButtonWhenCodeShowsOrHidesThem) {
  AuditionPage page;
  page.controller().expand();
  EXPECT_EQ(page.writes().front(), "showDetailsButton.setState 1");
  page.record.calls.clear();
  page.controller().collapse();
  EXPECT_EQ(page.writes().front(), "showDetailsButton.setState 0");
}

TEST(Details, RepeatEverythingButTheButtonWhenTheyAreShownAlready) {
  AuditionPage page;
  page.controller().expand(true);
  page.record.calls.clear();
  page.controller().expand(true);
  EXPECT_THAT(heightsAndWrites(page),
              ElementsAre("auditionController.monoStereoTabView.setHidden false",
                          "auditionController.showDetailsText.setStringValue Hide Details",
                          "native.applyFrameSize 560 x 369",
                          "auditionController.helpButton.setFrameOrigin 500 7"));
}

TEST(Details, CollapseForASenderThatIsNoButton) {
  AuditionPage page;
  page.controller().expand();
  page.controller().toggleShowDetails(&page.control<FakeTextField>("showDetailsText"));
  EXPECT_EQ(page.control<FakeButton>("showDetailsButton").state(), 0);
}

TEST(Details, MoveNothingWhereThereIsNoHelpButton) {
  AuditionPage page;
  for (const auto& outlet : page.controller().connections().outlets()) {
    if (outlet.name == "helpButton") {
      *std::get<ui::Button**>(outlet.slot) = nullptr;
    }
  }
  page.controller().expand();
  EXPECT_EQ(page.view->native->frameSize().height, 369);
  EXPECT_EQ(page.record.calls.count("auditionController.helpButton."), 0U);
}

TEST(Details, KeepTheirStateAndTakeTheCollapsedHeightWhileThePageIsLeft) {
  AuditionPage page;
  page.controller().expand();
  page.record.calls.clear();
  page.controller().cleanup();
  EXPECT_EQ(page.view->native->frameSize().height, 195);
  EXPECT_THAT(page.writes(), IsEmpty());
  EXPECT_EQ(page.control<FakeButton>("showDetailsButton").state(), 1);
  page.record.calls.clear();
  page.controller().prepare();
  EXPECT_EQ(page.view->native->frameSize().height, 369);
  EXPECT_THAT(page.writes(), ElementsAre("monitorControl.setSelectedSegment 1"));
}

TEST(Details, ExpandOnTheNextTurnWhenAHostAsksForATallView) {
  AuditionPage page;
  page.view->native->setFrameSize({400, 369});
  EXPECT_THAT(heightsAndWrites(page), IsEmpty());
  page.advance(0);
  EXPECT_THAT(heightsAndWrites(page),
              ElementsAre("auditionController.showDetailsButton.setState 1",
                          "auditionController.monoStereoTabView.setHidden false",
                          "auditionController.showDetailsText.setStringValue Hide Details",
                          "native.applyFrameSize 560 x 369",
                          "auditionController.helpButton.setFrameOrigin 500 7"));
}

TEST(Details, SwitchThePageBeforeTheSizeWhenAHostAsksForTheTestPagesHeight) {
  AuditionPage page;
  page.view->native->setFrameSize({600, 255});
  EXPECT_THAT(page.record.calls.starting("view.tabView.", "timer.", "native.applyFrameSize"),
              ElementsAre("view.tabView.selectItemAtIndex 1", "timer.invalidate",
                          "native.applyFrameSize 560 x 195", "native.applyFrameSize 560 x 255",
                          "native.applyFrameSize 600 x 255"));
}

TEST(Details, AreAllThatAHeightAboveTheCollapsedOneAsksFor) {
  for (const double height : {195.001, 254.999, 255.5, 368.0, 369.0, 10000.0}) {
    AuditionPage page;
    page.view->native->setFrameSize({560, height});
    page.advance(0);
    EXPECT_EQ(page.view->native->frameSize(), (ui::Size{560, 369})) << height;
    EXPECT_EQ(page.tabs().indexOfSelectedItem(), 0) << height;
  }
}

TEST(Details, StayAsTheyAreForAHeightUpToTheCollapsedOne) {
  for (const double height : {195.0, 194.999, 0.0, -255.0}) {
    AuditionPage page;
    page.view->native->setFrameSize({700, height});
    page.advance(100);
    EXPECT_EQ(page.view->native->frameSize(), (ui::Size{560, 195})) << height;
    EXPECT_EQ(page.record.calls.count("native.applyFrameSize"), 0U) << height;
  }
}

}  // namespace
}  // namespace audition_test

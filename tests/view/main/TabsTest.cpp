#include <limits>
#include <stdexcept>

#include "view/fakes/ViewTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Tabs : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
  fakes::FakeSheets& sheets() { return bound->toolkit.sheets; }
  void startTest() {
    tabs().userClicks(1);
    view().setPerformingListeningTest(true);
    settle();
    forget();
  }
};

TEST_F(Tabs, EachIndexHasItsController) {
  EXPECT_EQ(view().controllerForTabAtIndex(0), &bound->objects().auditionController());
  EXPECT_EQ(view().controllerForTabAtIndex(1), &bound->objects().listeningTestController());
  for (const int index : {-1, 2, 1000}) {
    EXPECT_EQ(view().controllerForTabAtIndex(index), nullptr);
  }
}

TEST_F(Tabs, AChangeCleansUpThePageThatIsLeftBeforeTheOtherIsPrepared) {
  tabs().userClicks(1);
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("timer.invalidate", "native.applyFrameSize 560 x 195",
                          "native.applyFrameSize 560 x 255"));
  forget();
  tabs().userClicks(0);
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("auditionController.monitorControl.setSelectedSegment 1",
                          "runLoop.scheduledTimer 0.075", "timer.addToMode EventTracking",
                          "timer.addToMode ModalPanel", "native.applyFrameSize 560 x 195"));
}

TEST_F(Tabs, TheSelectedTabSelectedAgainCleansUpAndPreparesNothing) {
  tabs().userClicks(0);
  view().willSelectTabViewItem(tabs().itemAtIndex(0));
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(Tabs, TheAlertKeepsItsTexts) {
  startTest();
  EXPECT_FALSE(view().shouldSelectTabViewItem(tabs().itemAtIndex(0)));
  EXPECT_THAT(record.calls.lines(), ElementsAre("sheets.beginAlertSheet over view.settingsButton"));
  const ui::AlertTexts& texts = sheets().alertTexts();
  EXPECT_EQ(texts.title, "");
  EXPECT_EQ(texts.defaultButton, "Resume");
  EXPECT_EQ(texts.alternateButton, "Stop");
  EXPECT_EQ(texts.message,
            "You are currently performing a listening test. Would you like to stop the test?");
}

TEST_F(Tabs, OneAlertIsOpenAtATime) {
  startTest();
  tabs().userClicks(0);
  tabs().userClicks(0);
  EXPECT_EQ(record.calls.count("sheets.beginAlertSheet"), 1U);
  sheets().answerAlert(ui::kAlertDefaultReturn);
  tabs().userClicks(0);
  EXPECT_EQ(record.calls.count("sheets.beginAlertSheet"), 2U);
}

TEST_F(Tabs, AnAlertThatCouldNotBeShownIsShownTheNextTime) {
  startTest();
  sheets().cannotOpen = true;
  EXPECT_THROW(tabs().userClicks(0), std::runtime_error);
  EXPECT_EQ(tabs().indexOfSelectedItem(), 1);
  sheets().cannotOpen = false;
  tabs().userClicks(0);
  EXPECT_TRUE(sheets().isAlertOpen());
}

TEST_F(Tabs, EveryAnswerButStopLeavesTheTestAlone) {
  startTest();
  ui::Window alert;
  for (const int code : {1, -1, 2, -1000}) {
    view().testAlertSheetDidEnd(alert, code, tabs().itemAtIndex(0));
  }
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(Tabs, StopEndsTheTestWithTheAlertAsSenderAndThenSelectsTheTab) {
  startTest();
  tabs().userClicks(0);
  forget();
  sheets().answerAlert(ui::kAlertAlternateReturn);
  EXPECT_THAT(record.calls.starting("unit.set", "view.", "sheets."),
              ElementsAre("unit.setProperty 5304 = 0", "view.encoderPopup.setEnabled true",
                          "view.tabView.selectItemAtIndex 0"));
  EXPECT_EQ(tabs().indexOfSelectedItem(), 0);
}

TEST_F(Tabs, StopWithoutATabOnlyEndsTheTest) {
  startTest();
  ui::Window alert;
  view().testAlertSheetDidEnd(alert, ui::kAlertAlternateReturn, nullptr);
  EXPECT_FALSE(view().isPerformingListeningTest());
  EXPECT_EQ(tabs().indexOfSelectedItem(), 1);
}

TEST_F(Tabs, ATestThatRunsElsewhereIsAskedAboutToo) {
  unit.hostSetsProperty(velk::kConverterProperty_ListeningTestActive, 1);
  settle();
  tabs().userClicks(1);
  EXPECT_TRUE(sheets().isAlertOpen());
  EXPECT_EQ(tabs().indexOfSelectedItem(), 0);
}

class Help : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
};

TEST_F(Help, IsChosenByTheTagOfTheSender) {
  fakes::FakeButton button(record.calls, "a button");
  for (const int tag : {0, 999, 1000, 1001, 1002}) {
    button.setTag(tag);
    view().showHelp(&button);
  }
  EXPECT_THAT(bound->toolkit.helpManager.anchors(), ElementsAre("audition", "listening-test"));
}

TEST_F(Help, NeedsASenderWithATag) {
  view().showHelp(nullptr);
  view().showHelp(&view());
  EXPECT_THAT(bound->toolkit.helpManager.anchors(), IsEmpty());
}

class ViewSize : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
};

TEST_F(ViewSize, ATallRequestIsDeferredAndItsSizeNeverApplied) {
  bound->native->setFrameSize({400, 300});
  EXPECT_THAT(record.calls.lines(), ElementsAre("runLoop.performLater"));
  forget();
  advance(0);
  EXPECT_THAT(record.calls.starting("native.", "auditionController."),
              ElementsAre("auditionController.showDetailsButton.setState 1",
                          "auditionController.monoStereoTabView.setHidden false",
                          "auditionController.showDetailsText.setStringValue Hide Details",
                          "native.applyFrameSize 560 x 369",
                          "auditionController.helpButton.setFrameOrigin 500 7"));
}

TEST_F(ViewSize, ManyTallRequestsExpandOnce) {
  for (int count = 0; count < 10; ++count) {
    bound->native->setFrameSize({400, 369});
  }
  forget();
  advance(0);
  EXPECT_EQ(record.calls.count("native.applyFrameSize"), 1U);
}

TEST_F(ViewSize, ThePageIsSwitchedBeforeTheTestPagesHeightIsApplied) {
  bound->native->setFrameSize({600, 255});
  EXPECT_THAT(record.calls.starting("native.", "view.", "timer."),
              ElementsAre("view.tabView.selectItemAtIndex 1", "timer.invalidate",
                          "native.applyFrameSize 560 x 195", "native.applyFrameSize 560 x 255",
                          "native.applyFrameSize 600 x 255"));
}

TEST_F(ViewSize, TheOwnHeightKeepsTheWidth) {
  bound->native->setFrameSize({600, 255});
  view().changeHeight(195);
  EXPECT_EQ(bound->native->frameSize(), (ui::Size{600, 195}));
}

TEST_F(ViewSize, AChangeThatThrowsDoesNotOpenTheViewToOtherSizes) {
  fakes::FakeNativeView& native = *bound->native;
  native.setFrameSizeObserver([](ui::Size) { throw std::runtime_error("the host's observer"); });
  EXPECT_THROW(view().changeHeight(369), std::runtime_error);
  native.setFrameSizeObserver(nullptr);
  native.setFrameSize({700, 100});
  EXPECT_EQ(native.frameSize(), (ui::Size{560, 369}));
}

TEST_F(ViewSize, AViewThatCannotBeResizedStillRefusesSizesFromOutside) {
  fakes::FakeNativeView& native = *bound->native;
  native.cannotResize = true;
  EXPECT_THROW(view().changeHeight(369), std::runtime_error);
  native.cannotResize = false;
  native.setFrameSize({700, 100});
  EXPECT_EQ(native.frameSize(), (ui::Size{560, 195}));
}

TEST_F(ViewSize, ARequestThatIsNoNumberIsIgnored) {
  bound->native->setFrameSize({560, std::numeric_limits<double>::quiet_NaN()});
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(ViewSize, AHostThatFollowsEveryHeightComesToRest) {
  fakes::FakeNativeView& native = *bound->native;
  native.setFrameSizeObserver([&](ui::Size size) { native.setFrameSize(size); });
  native.setFrameSize({560, 369});
  settle();
  forget();
  advance(1000);
  EXPECT_EQ(record.calls.count("native.applyFrameSize"), 0U);
  EXPECT_EQ(native.frameSize().height, 369.0);
}

}  // namespace

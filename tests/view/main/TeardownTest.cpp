#include "view/fakes/ViewTest.h"

namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Teardown : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
  void openCustomSheet() { menu().userPicks(menu().numberOfItems() - 1); }
  void startTest() {
    tabs().userClicks(1);
    bound->control<fakes::FakeButton>("listeningTestController.aIsSourceButton").userClicks();
    settle();
  }
};

TEST_F(Teardown, OfTheAuditionPageKeepsItsOrder) {
  bound->native->removeFromSuperview();
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("timer.invalidate", "native.applyFrameSize 560 x 195"));
  EXPECT_EQ(bound->toolkit.runLoop.runningTimers(), 0);
}

TEST_F(Teardown, OfTheTestPageEndsItsObservers) {
  tabs().userClicks(1);
  bound->native->removeFromSuperview();
  forget();
  ui::NotificationCenter::defaultCenter().post("aac_monitorAActionPerformedNotification", &view());
  EXPECT_THAT(record.calls.starting("listeningTestController"), IsEmpty());
}

TEST_F(Teardown, UnbindsTheUnitBeforeThePageIsCleanedUp) {
  bound->native->removeFromSuperview();
  forget();
  view().resetClippingAndPeaks();
  EXPECT_THAT(record.calls.starting("unit."), IsEmpty());
  EXPECT_THAT(record.log.lines(),
              ElementsAre("Unable to reset clipping and peak data- error from AU: -10877"));
  EXPECT_THROW(view().getFormat(), ui::AssertionFailure);
}

TEST_F(Teardown, DropsEventsThatWaited) {
  unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  unit.hostSetsParameter(0, 1);
  bound->native->removeFromSuperview();
  forget();
  settle();
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(Teardown, HappensOnce) {
  bound->native->removeFromSuperview();
  forget();
  bound->native->removeFromSuperview();
  bound->native.reset();
  EXPECT_THAT(record.calls.lines(), ElementsAre("view.tabView.setDelegate none"));
}

TEST_F(Teardown, HappensInTheDestructorFailingARemoval) {
  bound->native.reset();
  EXPECT_THAT(record.calls.lines(), Contains("timer.invalidate"));
  forget();
  unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  bound->toolkit.runLoop.advance(200ms);
  EXPECT_THAT(record.calls.starting("posted", "unit."), IsEmpty());
}

TEST_F(Teardown, ThatThrowsInTheDestructorIsLoggedAndGoesNoFurther) {
  bound->native->cannotResize = true;
  bound->native.reset();
  EXPECT_THAT(record.log.lines(), ElementsAre(testing::HasSubstr("cannot be resized")));
  EXPECT_EQ(record.calls.lines().back(), "view.tabView.setDelegate none");
}

TEST_F(Teardown, IsNoMoveToAnotherSuperview) {
  bound->native->moveToSuperview(true);
  bound->native->moveToSuperview(false);
  bound->native->moveToSuperview(true);
  EXPECT_EQ(bound->toolkit.runLoop.runningTimers(), 1);
  EXPECT_THAT(record.calls.lines(), ElementsAre("native.makeFirstResponder"));
}

TEST_F(Teardown, AKeyPressedAfterwardsIsOnlyHandedOn) {
  bound->native->removeFromSuperview();
  forget();
  bound->native->pressKey(18);
  EXPECT_THAT(record.calls.lines(), ElementsAre("native.interpretKeyEvents 18"));
}

TEST_F(Teardown, ATabClickedAfterwardsBringsNoPageToLife) {
  bound->native->removeFromSuperview();
  forget();
  tabs().userClicks(1);
  tabs().userClicks(0);
  EXPECT_THAT(record.calls.lines(), IsEmpty());
  EXPECT_EQ(bound->toolkit.runLoop.runningTimers(), 0);
}

TEST_F(Teardown, ASizeRequestAfterwardsDoesNothing) {
  bound->native->removeFromSuperview();
  forget();
  bound->native->setFrameSize({560, 255});
  bound->native->setFrameSize({560, 369});
  settle();
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(Teardown, CancelsAnExpansionThatWaits) {
  bound->native->setFrameSize({560, 369});
  EXPECT_EQ(bound->toolkit.runLoop.waitingWork(), 1);
  bound->native->removeFromSuperview();
  EXPECT_EQ(bound->toolkit.runLoop.waitingWork(), 0);
  settle();
  EXPECT_EQ(bound->native->frameSize().height, 195.0);
}

// The end functions of a skin that does not cancel by itself: the view is safe all the same.

TEST_F(Teardown, TheCustomSheetsEndIsIgnoredAfterwards) {
  openCustomSheet();
  view().cleanup();
  forget();
  bound->control<fakes::FakeButton>("settingsController.OKButton").userClicks();
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("sheets.endSheet settingsController.settingsSheet 1"));
}

TEST_F(Teardown, TheAlertsAnswerIsIgnoredAfterwards) {
  startTest();
  tabs().userClicks(0);
  view().cleanup();
  forget();
  bound->toolkit.sheets.answerAlert(ui::kAlertAlternateReturn);
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(Teardown, TheAlertsAnswerIsIgnoredWhenTheViewIsGone) {
  startTest();
  tabs().userClicks(0);
  ASSERT_TRUE(bound->toolkit.sheets.isAlertOpen());
  bound->native->removeFromSuperview();
  EXPECT_FALSE(bound->toolkit.sheets.isAlertOpen());
  EXPECT_THAT(record.calls.lines(), Not(Contains("unit.setProperty 5304 = 0")));
}

TEST_F(Teardown, AViewBoundAgainAfterwardsStillGoesWithoutATrace) {
  bound->native->removeFromSuperview();
  view().setAU(&unit);
  bound->native.reset();
  forget();
  unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  bound->toolkit.runLoop.advance(200ms);
  EXPECT_THAT(record.calls.starting("posted", "unit."), IsEmpty());
}

TEST_F(Teardown, AThousandViewsLeaveNothingBehind) {
  bound.reset();
  for (int count = 0; count < 1000; ++count) {
    fakes::BoundView opened(record, unit);
    if (count % 3 == 0) {
      opened.native->setFrameSize({560, 369});
      opened.advance(80ms);
    }
    if (count % 3 == 1) {
      opened.control<fakes::FakeTabView>("view.tabView").userClicks(1);
    }
    if (count % 2 == 0) {
      opened.native->removeFromSuperview();
    }
    record.calls.clear();
  }
  unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  unit.hostSetsParameter(0, 1);
  fakes::FakeRunLoop loop(record.calls);
  loop.advance(200ms);
  EXPECT_THAT(record.calls.starting("posted", "unit."), IsEmpty());
  ui::NotificationCenter::defaultCenter().post("aac_clearClipActionPerformedNotification", nullptr);
  EXPECT_THAT(record.calls.starting("unit."), IsEmpty());
}

TEST_F(Teardown, MayComeFromAnObserverOfAnyNotification) {
  const std::vector<std::pair<std::string_view, std::function<void()>>> causes = {
      {"aac_monitorEncodedActionPerformedNotification", [&] { bound->native->pressKey(19); }},
      {"aac_listeningTestChooseBActionPerformedNotification", [&] { bound->native->pressKey(19); }},
      {"aac_clearClipActionPerformedNotification", [&] { bound->native->pressKey(51); }},
      {"aac_monitorAActionPerformedNotification", [&] { bound->native->pressKey(0); }},
      {"auAACSourceSelectionChangedNotification",
       [&] { unit.hostSetsProperty(velk::kConverterProperty_MonitorSource, 1); }},
      {"auAACResetStatsNotification",
       [&] { unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1); }},
      {"auAACListeningTestStateChangedNotification",
       [&] { unit.hostSetsProperty(velk::kConverterProperty_ListeningTestActive, 1); }},
  };
  for (const auto& [name, cause] : causes) {
    SCOPED_TRACE(name);
    bind();
    int observer = 0;
    ui::NotificationCenter::defaultCenter().addObserver(
        &observer, name, &view(), [&](const ui::Notification&) { bound->native.reset(); });
    cause();
    settle();
    ui::NotificationCenter::defaultCenter().removeObserver(&observer);
    EXPECT_EQ(bound->native, nullptr);
    forget();
    settle();
    EXPECT_THAT(record.calls.lines(), IsEmpty());
  }
}

class FirstResponder : public fakes::ViewTest {};

TEST_F(FirstResponder, TheViewBecomesWhenItEntersAWindow) {
  bind();
  bound->native->moveToSuperview(false);
  EXPECT_THAT(record.calls.lines(), IsEmpty());
  bound->native->moveToSuperview(true);
  EXPECT_THAT(record.calls.lines(), ElementsAre("native.makeFirstResponder"));
}

}  // namespace

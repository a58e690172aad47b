#include "audio_unit/AUEventListener.h"
#include "view/fakes/ViewTest.h"
#include "view/main/Notifications.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class Binding : public fakes::ViewTest {};

TEST_F(Binding, KeepsItsOrder) {
  bound = std::make_unique<fakes::BoundView>(record, unit);
  EXPECT_THAT(
      record.calls.lines(),
      ElementsAre(
          "loader.loadNibNamed Velk_NordaAACConverter",
          // Cached state.
          "unit.getProperty 5301 scope 0 element 0 size 4",
          "unit.getProperty 8 scope 2 element 0 size 40",
          "unit.getProperty 5304 scope 0 element 0 size 4",
          // Owners and the selected tab's controller.
          "auditionController.monoStereoTabView.selectItemAtIndex 0",
          "auditionController.monitorControl.setSelectedSegment 1", "runLoop.scheduledTimer 0.075",
          "timer.addToMode EventTracking", "timer.addToMode ModalPanel",
          "native.applyFrameSize 560 x 195", "view.tabView.setDelegate view",
          // HEv2, preset keys, menu.
          testing::StartsWith("unit.getProperty 4 scope 0 element 0 size"),
          "view.encoderPopup[128K AAC].setRepresentedObject Format=0 RateQuality=10 Strategy=1",
          "view.encoderPopup[Streaming].setRepresentedObject Format=1 RateQuality=7 Strategy=0",
          "unit.getParameter 0", "unit.getParameter 1", "unit.getParameter 1",
          "unit.getParameter 2", "view.encoderPopup.selectItemAtIndex 0",
          // The window.
          "native.makeFirstResponder"));
}

TEST_F(Binding, ListensToParametersAndToThreeProperties) {
  bind();
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    forget();
    unit.announce(parameter);
    settle();
    EXPECT_EQ(record.calls.count("view.encoderPopup.selectItemAtIndex"), 1U) << parameter;
  }
  forget();
  for (const UInt32 property : {5301U, 5302U, 5303U, 5304U, 8U, 24U, 36U}) {
    unit.announceChangeOf(property);
  }
  settle();
  EXPECT_THAT(record.notifications.names(),
              ElementsAre("auAACSourceSelectionChangedNotification", "auAACResetStatsNotification",
                          "auAACListeningTestStateChangedNotification"));
  EXPECT_THAT(record.notifications.objects(), Each(static_cast<const void*>(&view())));
}

TEST_F(Binding, CachesWhatTheUnitSays) {
  unit.monitorSource = 5;
  unit.channels = 6;
  unit.listeningTestActive = 3;
  unit.maximumFormat = 2.0F;
  bind();
  EXPECT_FALSE(view().isMonitoringEncoder());
  EXPECT_EQ(view().numChannels(), 6U);
  EXPECT_TRUE(view().isPerformingListeningTest());
  EXPECT_TRUE(view().hasHEV2());
  EXPECT_EQ(record.calls.count("unit."), 0U);
}

TEST_F(Binding, TakesTheStartingValuesForWhatTheUnitDoesNotSay) {
  unit.monitorSource = 1;
  unit.listeningTestActive = 1;
  for (const UInt32 property : {5301U, 5304U, 4U, 8U}) {
    unit.failAlways(fakes::UnitCall::GetProperty, property, -10879);
  }
  bind();
  EXPECT_TRUE(view().isMonitoringEncoder());
  EXPECT_EQ(view().numChannels(), 0U);
  EXPECT_FALSE(view().isPerformingListeningTest());
  EXPECT_FALSE(view().hasHEV2());
}

TEST_F(Binding, OffersHEv2ForAMaximumOfExactlyTwo) {
  for (const auto& [maximum, offered] : std::vector<std::pair<float, bool>>{
           {0.0F, false}, {1.0F, false}, {1.99F, false}, {2.0F, true}, {3.0F, false}}) {
    unit.maximumFormat = maximum;
    bind();
    EXPECT_EQ(view().hasHEV2(), offered) << maximum;
  }
}

TEST_F(Binding, ATestThatRunsElsewhereLeavesTheMenuEnabled) {
  unit.listeningTestActive = 1;
  bind();
  EXPECT_TRUE(menu().isEnabled());
}

class Rebinding : public fakes::ViewTest {
 protected:
  Rebinding() : other(record.calls) {}
  /// Destroyed before the units.
  ~Rebinding() override { bound.reset(); }

  fakes::FakeConverter other;
};

TEST_F(Rebinding, ReadsEveryCachedValueAnew) {
  bind();
  other.monitorSource = 1;
  other.channels = 1;
  other.listeningTestActive = 1;
  other.maximumFormat = 1.0F;
  other.setSetting({1, 1, 16});
  view().setAU(&other);
  EXPECT_FALSE(view().isMonitoringEncoder());
  EXPECT_EQ(view().numChannels(), 1U);
  EXPECT_TRUE(view().isPerformingListeningTest());
  EXPECT_FALSE(view().hasHEV2());
  EXPECT_EQ(menu().indexOfSelectedItem(), 3);
}

TEST_F(Rebinding, HearsTheNewUnitOnly) {
  bind();
  view().setAU(&other);
  settle();
  forget();
  unit.hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  unit.hostSetsParameter(0, 2);
  settle();
  EXPECT_THAT(record.notifications.names(), IsEmpty());
  EXPECT_THAT(record.calls.starting("view.encoderPopup"), IsEmpty());
  other.hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  settle();
  EXPECT_EQ(record.notifications.names().size(), 1U);
}

TEST_F(Rebinding, DropsWhatTheOldUnitHadWaiting) {
  bind();
  unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  view().setAU(&other);
  settle();
  EXPECT_THAT(record.notifications.names(), IsEmpty());
}

TEST_F(Rebinding, PreparesTheSelectedTabAgainAndRunsNothingTwice) {
  bind();
  view().setAU(&other);
  EXPECT_EQ(bound->toolkit.runLoop.runningTimers(), 1);
  settle();
  forget();
  advance(75);
  // A poll reads the statistics twice.
  EXPECT_EQ(record.calls.count("unit.getProperty 5302"), 2U);
  forget();
  bound->native->pressKey(18);
  EXPECT_THAT(writes(), ElementsAre("unit.setProperty 5301 = 1"));
}

TEST_F(Rebinding, AnswersOnceOnTheTestPage) {
  bind();
  tabs().userClicks(1);
  view().setAU(&other);
  bound->native->pressKey(18);
  EXPECT_EQ(bound->control<fakes::FakeTextField>("listeningTestController.cycleLabel").text(),
            "Test Cycle: 2 of 20");
}

TEST_F(Rebinding, ToTheSameUnitHearsEachChangeOnce) {
  bind();
  view().setAU(&unit);
  settle();
  forget();
  unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  settle();
  EXPECT_EQ(record.notifications.names().size(), 1U);
}

TEST_F(Rebinding, AfterAFailureTheViewCanBeBoundAgain) {
  bind();
  other.failOnce(fakes::UnitCall::GetParameter, 0, -1);
  EXPECT_THROW(view().setAU(&other), ui::AssertionFailure);
  view().setAU(&other);
  settle();
  forget();
  other.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  settle();
  EXPECT_EQ(record.notifications.names().size(), 1U);
}

}  // namespace

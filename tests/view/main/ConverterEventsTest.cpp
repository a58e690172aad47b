#include "audio_unit/AUEventListener.h"
#include "view/fakes/ViewTest.h"
#include "view/main/ConverterEventListenerDispatcher.h"

namespace {

using fakes::UnitCall;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ConverterEvents : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
  std::size_t refreshes() const {
    return record.calls.count("view.encoderPopup.selectItemAtIndex");
  }
  AudioUnitEvent propertyChange(AudioUnitPropertyID id) {
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_PropertyChange;
    event.mArgument.mProperty = {&unit, id, kAudioUnitScope_Global, 0};
    return event;
  }
  AudioUnitEvent valueChange(AudioUnitParameterID id) {
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_ParameterValueChange;
    event.mArgument.mParameter = {&unit, id, kAudioUnitScope_Global, 0};
    return event;
  }
};

TEST_F(ConverterEvents, AnothersChangeOfAParameterRefreshesTheMenu) {
  unit.hostSetsParameter(velk::kConverterParam_RateQuality, 3);
  EXPECT_EQ(refreshes(), 0U);
  settle();
  EXPECT_EQ(refreshes(), 1U);
}

TEST_F(ConverterEvents, ItsOwnChangeOfTheRateDoesNotComeBack) {
  view().setRate(3);
  settle();
  EXPECT_EQ(refreshes(), 0U);
}

TEST_F(ConverterEvents, ItsOwnChangeOfTheStrategyComesBackAsTheRateThatMeansSomethingElse) {
  view().setStrategy(0);
  settle();
  EXPECT_EQ(refreshes(), 1U);
}

TEST_F(ConverterEvents, GesturesLeadToNothing) {
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    unit.hostMakesGesture(parameter);
  }
  settle();
  EXPECT_EQ(refreshes(), 0U);
  EXPECT_THAT(record.notifications.names(), IsEmpty());
}

TEST_F(ConverterEvents, APollDoesNotCountAsAChange) {
  unit.announceChangeOf(velk::kConverterProperty_PeakStats);
  settle();
  EXPECT_THAT(record.notifications.names(), IsEmpty());
}

TEST_F(ConverterEvents, TheMonitoredSignalIsReadBeforeItIsPosted) {
  unit.monitorSource = 1;
  const AudioUnitEvent event = propertyChange(velk::kConverterProperty_MonitorSource);
  view().priv_eventListener(&view(), event, 0);
  EXPECT_FALSE(view().isMonitoringEncoder());
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.getProperty 5301 scope 0 element 0 size 4",
                          "posted auAACSourceSelectionChangedNotification",
                          "auditionController.monitorControl.setSelectedSegment 0"));
}

TEST_F(ConverterEvents, ANotificationIsAboutTheRegisteredObject) {
  int another = 0;
  const AudioUnitEvent event = propertyChange(velk::kConverterProperty_ResetPeakStats);
  view().priv_eventListener(&another, event, 0);
  EXPECT_THAT(record.notifications.objects(), ElementsAre(static_cast<const void*>(&another)));
}

TEST_F(ConverterEvents, ATestStateIsReadBeforeItIsPosted) {
  unit.listeningTestActive = 2;
  const AudioUnitEvent event = propertyChange(velk::kConverterProperty_ListeningTestActive);
  view().priv_eventListener(&view(), event, 0);
  EXPECT_TRUE(view().isPerformingListeningTest());
  EXPECT_TRUE(menu().isEnabled());
  unit.failOnce(UnitCall::GetProperty, velk::kConverterProperty_ListeningTestActive, -1);
  view().priv_eventListener(&view(), event, 0);
  EXPECT_FALSE(view().isPerformingListeningTest());
}

TEST_F(ConverterEvents, AMonitoredSignalThatCannotBeReadStaysWhatItWas) {
  const AudioUnitEvent event = propertyChange(velk::kConverterProperty_MonitorSource);
  for (const bool encoded : {true, false}) {
    view().monitorEncoder(encoded);
    unit.failOnce(UnitCall::GetProperty, velk::kConverterProperty_MonitorSource, -1);
    view().priv_eventListener(&view(), event, 0);
    EXPECT_EQ(view().isMonitoringEncoder(), encoded);
  }
}

TEST_F(ConverterEvents, AValueChangeOfAnotherParameterIsTakenByItsNumber) {
  view().priv_eventListener(&view(), valueChange(3), 0);
  EXPECT_THAT(record.calls.lines(), IsEmpty());
  view().priv_eventListener(&view(), valueChange(5303), 0);
  EXPECT_THAT(record.notifications.names(), ElementsAre("auAACResetStatsNotification"));
}

TEST_F(ConverterEvents, APropertyNumberedLikeAParameterIsIgnored) {
  for (const UInt32 property : {0U, 1U, 2U, 5300U, 5302U, 5305U}) {
    view().priv_eventListener(&view(), propertyChange(property), 0);
  }
  EXPECT_THAT(record.calls.lines(), IsEmpty());
}

TEST_F(ConverterEvents, AnOpenCustomSheetIsRefreshedInsteadOfTheMenu) {
  view().setCustomEncoder(nullptr);
  forget();
  view().priv_eventListener(&view(), valueChange(1), 0);
  EXPECT_EQ(refreshes(), 0U);
  EXPECT_EQ(record.calls.count("settingsController.typePopup.selectItemAtIndex"), 1U);
  view().configSheetDidClose();
  view().priv_eventListener(&view(), valueChange(1), 0);
  EXPECT_EQ(refreshes(), 1U);
}

TEST_F(ConverterEvents, AnAssertionInACallbackEndsInTheLog) {
  unit.failOnce(UnitCall::GetParameter, 0, -1);
  const AudioUnitEvent event = valueChange(0);
  velk::ConverterEventListenerDispatcher(&view(), &view(), &event, 0, 0);
  EXPECT_EQ(refreshes(), 0U);
  EXPECT_THAT(record.log.lines(), testing::Not(IsEmpty()));
  unit.hostSetsParameter(velk::kConverterParam_RateQuality, 1);
  settle();
  EXPECT_EQ(refreshes(), 1U);
}

TEST_F(ConverterEvents, AThousandChangesRefreshOncePerFiftyMillisecondsAndParameter) {
  for (int count = 0; count < 1000; ++count) {
    unit.hostSetsParameter(velk::kConverterParam_RateQuality, static_cast<float>(count % 17));
    advance(1);
  }
  settle();
  // One second, and the first and the last change.
  EXPECT_LE(refreshes(), 1000U / 50U + 2U);
  EXPECT_GE(refreshes(), 1000U / 50U - 1U);
  // 999 % 17 is 13.
  EXPECT_EQ(view().getEncoderName(), "AAC VBRC 224 Kbps");
}

TEST_F(ConverterEvents, ABurstOfAThousandChangesRefreshesOnceWithTheNewestValue) {
  for (int count = 0; count < 1000; ++count) {
    unit.hostSetsParameter(velk::kConverterParam_RateQuality, static_cast<float>(count % 16));
  }
  settle();
  EXPECT_EQ(refreshes(), 1U);
  // 999 % 16 is 7.
  EXPECT_EQ(view().getEncoderName(), "AAC VBRC 64 Kbps");
}

TEST_F(ConverterEvents, EveryPropertyChangeIsPosted) {
  for (int count = 0; count < 100; ++count) {
    unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  }
  settle();
  EXPECT_THAT(record.notifications.names(), SizeIs(100));
  EXPECT_THAT(record.notifications.names(), Each("auAACResetStatsNotification"));
}

TEST_F(ConverterEvents, NoEventMakesTheViewWriteToTheUnit) {
  for (const UInt32 property : {5301U, 5303U, 5304U}) {
    unit.hostSetsProperty(property, 1);
    settle();
    unit.hostSetsProperty(property, 0);
    settle();
  }
  for (int step = 0; step < 30; ++step) {
    const auto value = static_cast<float>(step);
    unit.hostSetsSetting({static_cast<float>(step % 4), static_cast<float>(step % 3), value});
    settle();
  }
  EXPECT_THAT(writes(), IsEmpty());
}

class Registration : public fakes::ViewTest {};

TEST_F(Registration, DoesNothingWithoutAUnit) {
  bind();
  view().priv_removeListeners();
  view().priv_addListenerForParameter(0, kAudioUnitScope_Global, 0);
  forget();
  unit.hostSetsParameter(0, 1);
  settle();
  EXPECT_EQ(record.calls.count("view.encoderPopup"), 0U);
}

TEST_F(Registration, RemovingListenersTwiceIsHarmless) {
  bind();
  view().priv_removeListeners();
  view().priv_removeListeners();
  EXPECT_EQ(view().getNumChannelsFromAudioUnit(), 0U);
}

}  // namespace

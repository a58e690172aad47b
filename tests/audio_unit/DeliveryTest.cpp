#include <stdexcept>

#include "ListenerFixture.h"

using Delivery = ListenerFixture;

TEST_F(Delivery, CallsRegistrationsOfOneEventInTheirOrder) {
  TestListener first(loop, journal, "first");
  TestListener second(loop, journal, "second");
  second.listenTo(valueOf(&unit, 0));
  first.listenTo(valueOf(&unit, 0));
  int object = 0;
  second.listenTo(valueOf(&unit, 0), &object);

  set(&unit, 0, 1);
  pumpAt(0);

  EXPECT_THAT(journal,
              ElementsAre("second: value 0 = 1", "first: value 0 = 1", "second: value 0 = 1"));
}

TEST_F(Delivery, KeepsTheOrderOfGestureAndPropertyEventsAndMergesNone) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 5301));
  listener.listenTo(propertyOf(&unit, 5303));
  listener.listenTo(endOf(&unit, 0));
  listener.listenTo(beginOf(&unit, 0));

  notify(beginOf(&unit, 0));
  notify(propertyOf(&unit, 5303));
  notify(propertyOf(&unit, 5303));
  notify(endOf(&unit, 0));
  notify(beginOf(&unit, 0));
  notify(propertyOf(&unit, 5301));
  notify(propertyOf(&unit, 5303));
  notify(endOf(&unit, 0));
  pumpAt(0);

  EXPECT_THAT(journal, ElementsAre("begin 0", "property 5303", "property 5303", "end 0", "begin 0",
                                   "property 5301", "property 5303", "end 0"));
}

TEST_F(Delivery, DoesNotHoldGesturesAndPropertiesForTheInterval) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(endOf(&unit, 0));
  listener.listenTo(propertyOf(&unit, 5301));
  set(&unit, 0, 1);
  notify(propertyOf(&unit, 5301));
  pumpAt(0);
  journal.clear();

  set(&unit, 0, 2);
  notify(endOf(&unit, 0));
  notify(propertyOf(&unit, 5301));
  pumpAt(1);

  EXPECT_THAT(journal, ElementsAre("end 0", "property 5301"));
}

TEST_F(Delivery, PassesBackTheObjectTheEventAndItsValue) {
  int object = 0;
  TestListener listener(loop, journal);
  listener.listenTo(
      parameterEvent(kAudioUnitEvent_ParameterValueChange, &unit, 2, kAudioUnitScope_Output, 7),
      &object);
  Call received{};
  listener.onCall = [&](const Call& call) { received = call; };

  const AudioUnitParameter parameter{&unit, 2, kAudioUnitScope_Output, 7};
  AUParameterSet(nullptr, nullptr, &parameter, 9.5F, 0);
  pumpAt(0);

  EXPECT_EQ(received.object, &object);
  EXPECT_EQ(received.event.mEventType, kAudioUnitEvent_ParameterValueChange);
  EXPECT_EQ(received.event.mArgument.mParameter.mAudioUnit, &unit);
  EXPECT_EQ(received.event.mArgument.mParameter.mParameterID, 2U);
  EXPECT_EQ(received.event.mArgument.mParameter.mScope, UInt32{kAudioUnitScope_Output});
  EXPECT_EQ(received.event.mArgument.mParameter.mElement, 7U);
  EXPECT_EQ(received.value, 9.5F);
}

TEST_F(Delivery, GivesTheSteadyClockTimeOfTheNewestChange) {
  using Clock = std::chrono::steady_clock;
  const auto now = [] {
    return static_cast<UInt64>(std::chrono::nanoseconds(Clock::now().time_since_epoch()).count());
  };
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(propertyOf(&unit, 5301));
  std::vector<UInt64> times;
  listener.onCall = [&](const Call& call) { times.push_back(call.hostTime); };

  const UInt64 start = now();
  notify(propertyOf(&unit, 5301));
  set(&unit, 0, 1);
  const UInt64 middle = now();
  set(&unit, 0, 2);
  const UInt64 end = now();
  pumpAt(0);

  ASSERT_EQ(times.size(), 2U);
  EXPECT_GE(times[0], start);
  EXPECT_LE(times[0], middle);
  EXPECT_GE(times[1], middle);
  EXPECT_LE(times[1], end);
}

TEST_F(Delivery, LeavesAnEventThatACallbackCausesToTheNextPump) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 5301));
  listener.listenTo(propertyOf(&unit, 5303));
  listener.onCall = [&](const Call&) {
    if (journal.size() == 1) notify(propertyOf(&unit, 5303));
  };
  notify(propertyOf(&unit, 5301));

  EXPECT_EQ(pumpAt(3), at(3));
  EXPECT_THAT(journal, ElementsAre("property 5301"));
  EXPECT_EQ(pumpAt(3), std::nullopt);
  EXPECT_THAT(journal, ElementsAre("property 5301", "property 5303"));
}

TEST_F(Delivery, EndsEvenIfEveryCallbackCausesAnotherEvent) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 5301));
  listener.onCall = [&](const Call&) { notify(propertyOf(&unit, 5301)); };
  notify(propertyOf(&unit, 5301));

  for (int i = 0; i < 3; ++i) EXPECT_EQ(pumpAt(i), at(i));
  EXPECT_EQ(journal.size(), 3U);
}

TEST_F(Delivery, ContinuesInOrderWhenACallbackPumps) {
  TestListener listener(loop, journal);
  for (UInt32 id : {1U, 2U, 3U}) listener.listenTo(propertyOf(&unit, id));
  listener.onCall = [&](const Call&) {
    if (journal.size() != 1) return;
    notify(propertyOf(&unit, 3));
    pumpAt(0);
    EXPECT_THAT(journal, ElementsAre("property 1", "property 2", "property 3"));
  };
  notify(propertyOf(&unit, 1));
  notify(propertyOf(&unit, 2));
  pumpAt(0);

  EXPECT_THAT(journal, ElementsAre("property 1", "property 2", "property 3"));
}

TEST_F(Delivery, MergesAValueIntoOneThatAnOuterPumpIsAboutToDeliver) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 1));
  listener.listenTo(valueOf(&unit, 0));
  listener.onCall = [&](const Call&) {
    if (journal.size() != 1) return;
    set(&unit, 0, 2);
    pumpAt(0);
  };
  notify(propertyOf(&unit, 1));
  set(&unit, 0, 1);
  EXPECT_EQ(pumpAt(0), std::nullopt);

  EXPECT_THAT(journal, ElementsAre("property 1", "value 0 = 2"));
}

TEST_F(Delivery, KeepsTheRestForTheNextPumpWhenACallbackThrows) {
  TestListener listener(loop, journal);
  for (UInt32 id : {1U, 2U}) listener.listenTo(propertyOf(&unit, id));
  listener.onCall = [&](const Call&) {
    if (journal.size() == 1) throw std::runtime_error("refused");
  };
  notify(propertyOf(&unit, 1));
  notify(propertyOf(&unit, 2));
  int wakeUps = 0;
  loop.setWakeUp([&] { ++wakeUps; });
  wakeUps = 0;

  EXPECT_THROW(pumpAt(0), std::runtime_error);
  EXPECT_EQ(wakeUps, 1);
  EXPECT_THAT(journal, ElementsAre("property 1"));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("property 1", "property 2"));
}

TEST_F(Delivery, ReachesEveryRunLoopThatListens) {
  audio_unit::RunLoop other;
  TestListener here(loop, journal, "here");
  TestListener there(other, journal, "there");
  here.listenTo(valueOf(&unit, 0));
  there.listenTo(valueOf(&unit, 0));

  set(&unit, 0, 1);
  other.pump(at(0));
  EXPECT_THAT(journal, ElementsAre("there: value 0 = 1"));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("there: value 0 = 1", "here: value 0 = 1"));
}

TEST_F(Delivery, CarriesTheValueOfAnAnnouncedParameter) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 2));
  listener.listenTo(propertyOf(&unit, 5301));
  unit.values[2] = 6;

  unit.announceParameter(2);
  unit.announceProperty(5301);
  pumpAt(0);

  EXPECT_THAT(journal, ElementsAre("value 2 = 6", "property 5301"));
}

TEST_F(Delivery, AnnouncesNothingWhenTheUnitRefusesTheWrite) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  unit.status = kAudioUnitErr_InvalidPropertyValue;

  EXPECT_EQ(set(&unit, 0, 1), kAudioUnitErr_InvalidPropertyValue);
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Delivery, AnnouncesNoValueThatCannotBeRead) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  unit.status = kAudioUnitErr_InvalidParameter;

  EXPECT_EQ(notify(valueOf(&unit, 0)), kAudioUnitErr_InvalidParameter);
  unit.announceParameter(0);
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Delivery, RefusesAnEventWithoutAUnitOrOfAnUnknownType) {
  EXPECT_EQ(AUEventListenerNotify(nullptr, nullptr, nullptr), kAudio_ParamError);
  EXPECT_EQ(notify(valueOf(nullptr, 0)), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(notify(propertyOf(nullptr, 0)), kAudioUnitErr_InvalidElement);
  AudioUnitEvent event = valueOf(&unit, 0);
  event.mEventType = static_cast<AudioUnitEventType>(4);
  EXPECT_EQ(notify(event), kAudio_ParamError);
  EXPECT_EQ(AUParameterSet(nullptr, nullptr, nullptr, 1, 0), kAudio_ParamError);
  EXPECT_EQ(set(nullptr, 0, 1), kAudioUnitErr_InvalidElement);
}

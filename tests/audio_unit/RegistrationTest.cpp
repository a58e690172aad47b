#include <limits>

#include "ListenerFixture.h"

using Registering = ListenerFixture;

namespace {

void ignore(void*, void*, const AudioUnitEvent*, UInt64, float) {}

OSStatus create(AUEventListenerProc proc, CFRunLoopRef loop, CFStringRef mode, float interval,
                AUEventListenerRef* listener, float granularity = 0.05F) {
  return AUEventListenerCreate(proc, nullptr, loop, mode, interval, granularity, listener);
}

}  // namespace

TEST_F(Registering, HasNoEffectTheSecondTime) {
  int object = 0;
  TestListener listener(loop, journal);
  for (int i = 0; i < 2; ++i) {
    listener.listenTo(valueOf(&unit, 0), &object);
    listener.listenTo(propertyOf(&unit, 5301), &object);
  }
  set(&unit, 0, 1);
  notify(propertyOf(&unit, 5301));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 1", "property 5301"));
}

TEST_F(Registering, ReachesOnlyTheRegisteredEvents) {
  FakeUnit otherUnit;
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 1));
  listener.listenTo(propertyOf(&unit, 1));

  set(&unit, 0, 1);
  set(&otherUnit, 1, 1);
  notify(beginOf(&unit, 1));
  notify(parameterEvent(kAudioUnitEvent_ParameterValueChange, &unit, 1, kAudioUnitScope_Output));
  notify(parameterEvent(kAudioUnitEvent_ParameterValueChange, &unit, 1, 0, 1));
  notify(propertyOf(&unit, 2));
  notify(propertyOf(&unit, 1, kAudioUnitScope_Input));
  notify(propertyOf(&unit, 1, kAudioUnitScope_Global, 1));
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());

  set(&unit, 1, 1);
  notify(propertyOf(&unit, 1));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 1 = 1", "property 1"));
}

TEST_F(Registering, DoesNotDeliverEarlierChanges) {
  TestListener early(loop, journal, "early");
  TestListener late(loop, journal, "late");
  early.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  late.listenTo(valueOf(&unit, 0));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("early: value 0 = 1"));
}

TEST_F(Registering, WorksInsideACallback) {
  TestListener listener(loop, journal, "first");
  TestListener later(loop, journal, "later");
  listener.listenTo(valueOf(&unit, 0));
  listener.onCall = [&](const Call&) {
    for (UInt32 id = 0; id < 100; ++id) later.listenTo(valueOf(&unit, id));
  };
  set(&unit, 0, 1);
  pumpAt(0);
  set(&unit, 0, 2);
  pumpAt(50);
  EXPECT_THAT(journal,
              ElementsAre("first: value 0 = 1", "first: value 0 = 2", "later: value 0 = 2"));
}

TEST_F(Registering, RefusesMissingArguments) {
  TestListener listener(loop, journal);
  const AudioUnitEvent event = valueOf(&unit, 0);
  EXPECT_EQ(AUEventListenerAddEventType(nullptr, nullptr, &event), kAudio_ParamError);
  EXPECT_EQ(AUEventListenerAddEventType(listener.reference, nullptr, nullptr), kAudio_ParamError);
  const AudioUnitEvent withoutUnit = valueOf(nullptr, 0);
  EXPECT_EQ(AUEventListenerAddEventType(listener.reference, nullptr, &withoutUnit),
            kAudioUnitErr_InvalidElement);
  AudioUnitEvent unknown = event;
  unknown.mEventType = static_cast<AudioUnitEventType>(77);
  EXPECT_EQ(AUEventListenerAddEventType(listener.reference, nullptr, &unknown), kAudio_ParamError);
}

TEST_F(Registering, NeedsAListenerMadeWithValidArguments) {
  AUEventListenerRef listener = nullptr;
  EXPECT_EQ(create(nullptr, &loop, kCFRunLoopCommonModes, 0.05F, &listener), kAudio_ParamError);
  EXPECT_EQ(create(ignore, nullptr, kCFRunLoopCommonModes, 0.05F, &listener), kAudio_ParamError);
  EXPECT_EQ(create(ignore, &loop, nullptr, 0.05F, &listener), kAudio_ParamError);
  EXPECT_EQ(create(ignore, &loop, kCFRunLoopCommonModes, 0.05F, nullptr), kAudio_ParamError);
  for (const float interval : {-0.01F, 3601.0F, std::numeric_limits<float>::infinity(),
                               std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_EQ(create(ignore, &loop, kCFRunLoopCommonModes, interval, &listener), kAudio_ParamError);
    EXPECT_EQ(create(ignore, &loop, kCFRunLoopCommonModes, 0.05F, &listener, interval),
              kAudio_ParamError);
  }
  EXPECT_EQ(listener, nullptr);
  EXPECT_EQ(create(ignore, &loop, kCFRunLoopCommonModes, 0.05F, &listener), noErr);
  EXPECT_EQ(AUListenerDispose(listener), noErr);
  EXPECT_EQ(AUListenerDispose(nullptr), kAudio_ParamError);
}

#include <gmock/gmock.h>

#include "ListenerFixture.h"

/// More changes than a run loop can hold.
class Overflow : public ListenerFixture {
 protected:
  static constexpr int kFlood = 5000;

  /// Fills the queue with changes that nobody listens to.
  void flood() {
    for (int i = 0; i < kFlood; ++i) set(&noise, 7, static_cast<float>(i));
  }

  FakeUnit noise;
  TestListener listener{loop, journal};
};

TEST_F(Overflow, DeliversAllThatFits) {
  listener.listenTo(propertyOf(&unit, 1));
  for (int i = 0; i < 4096; ++i) notify(propertyOf(&unit, 1));
  pumpAt(0);
  EXPECT_EQ(journal.size(), 4096U);
}

TEST_F(Overflow, CannotHappenWhileNobodyListens) {
  listener.dispose();
  flood();
  TestListener late(loop, journal);
  late.listenTo(valueOf(&unit, 0));
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Overflow, AnnouncesEveryRegisteredParameterWithTheValueReadFromTheUnit) {
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(valueOf(&unit, 1));
  unit.values[1] = 11;
  set(&unit, 0, 1);
  flood();
  set(&unit, 0, 2);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 2", "value 1 = 11"));
}

TEST_F(Overflow, AnnouncesEveryRegisteredPropertyAndEndOfAGesture) {
  listener.listenTo(beginOf(&unit, 0));
  listener.listenTo(endOf(&unit, 0));
  listener.listenTo(propertyOf(&unit, 5301));
  listener.listenTo(propertyOf(&unit, 5303));
  notify(beginOf(&unit, 0));
  flood();
  notify(endOf(&unit, 0));
  notify(propertyOf(&unit, 5303));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("begin 0", "end 0", "property 5301", "property 5303"));
}

TEST_F(Overflow, GivesTheTimeOfThePump) {
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(propertyOf(&unit, 1));
  std::vector<UInt64> times;
  listener.onCall = [&](const Call& call) { times.push_back(call.hostTime); };
  flood();
  pumpAt(0);
  const auto expected =
      static_cast<UInt64>(std::chrono::nanoseconds(at(0).time_since_epoch()).count());
  EXPECT_THAT(times, ElementsAre(expected, expected));
}

TEST_F(Overflow, IsOverWithThePump) {
  listener.listenTo(valueOf(&unit, 0));
  flood();
  EXPECT_EQ(pumpAt(0), std::nullopt);
  journal.clear();
  EXPECT_EQ(pumpAt(100), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
  set(&unit, 0, 5);
  pumpAt(200);
  EXPECT_THAT(journal, ElementsAre("value 0 = 5"));
}

TEST_F(Overflow, KeepsTheInterval) {
  listener.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  pumpAt(0);
  flood();
  EXPECT_EQ(pumpAt(10), at(50));
  pumpAt(50);
  EXPECT_THAT(journal, ElementsAre("value 0 = 1", "value 0 = 1"));
}

TEST_F(Overflow, ReachesEvenTheSenderBecauseNobodyKnowsWhoWasLost) {
  listener.listenTo(valueOf(&unit, 0));
  flood();
  set(&unit, 0, 2, listener.reference);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 2"));
}

TEST_F(Overflow, AnnouncesAParameterThatCannotBeReadWithItsLastKnownValue) {
  listener.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 4);
  pumpAt(0);
  flood();
  unit.status = kAudioUnitErr_InvalidParameter;
  pumpAt(100);
  EXPECT_THAT(journal, ElementsAre("value 0 = 4", "value 0 = 4"));
}

TEST_F(Overflow, DoesNotReadFromADestroyedUnit) {
  auto dying = std::make_unique<FakeUnit>();
  listener.listenTo(valueOf(dying.get(), 0));
  listener.listenTo(propertyOf(dying.get(), 0));
  flood();
  dying.reset();
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Overflow, DoesNotAffectListenersMadeAfterAllEarlierOnesWereDisposedOf) {
  listener.listenTo(propertyOf(&unit, 1));
  flood();
  listener.dispose();
  TestListener next(loop, journal);
  next.listenTo(propertyOf(&unit, 1));
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Overflow, WakesTheLoopOnce) {
  int wakeUps = 0;
  loop.setWakeUp([&] { ++wakeUps; });
  flood();
  EXPECT_EQ(wakeUps, 1);
}

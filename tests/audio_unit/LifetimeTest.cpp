#include <memory>
#include <new>
#include <optional>
#include <thread>

#include "ListenerFixture.h"

using Lifetime = ListenerFixture;

TEST_F(Lifetime, NothingArrivesAfterDisposeNotEvenWhatWasQueued) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(propertyOf(&unit, 5301));
  set(&unit, 0, 1);
  pumpAt(0);
  journal.clear();

  set(&unit, 0, 2);
  pumpAt(10);
  notify(propertyOf(&unit, 5301));
  listener.dispose();
  pumpAt(100);
  set(&unit, 0, 3);
  EXPECT_EQ(pumpAt(200), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Lifetime, AListenerMayDisposeOfItselfInItsOwnCallback) {
  auto listener = std::make_unique<TestListener>(loop, journal, "self");
  TestListener other(loop, journal, "other");
  for (TestListener* each : {listener.get(), &other}) {
    each->listenTo(propertyOf(&unit, 1));
    each->listenTo(valueOf(&unit, 0));
  }
  listener->onCall = [&](const Call&) { listener->dispose(); };
  notify(propertyOf(&unit, 1));
  notify(propertyOf(&unit, 1));
  set(&unit, 0, 1);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("self: property 1", "other: property 1", "other: property 1",
                                   "other: value 0 = 1"));
}

TEST_F(Lifetime, AListenerMayDisposeOfAnotherInItsCallback) {
  TestListener killer(loop, journal, "killer");
  TestListener victim(loop, journal, "victim");
  TestListener last(loop, journal, "last");
  for (TestListener* each : {&killer, &victim, &last}) each->listenTo(valueOf(&unit, 0));
  killer.onCall = [&](const Call&) { victim.dispose(); };
  set(&unit, 0, 1);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("killer: value 0 = 1", "last: value 0 = 1"));
}

TEST_F(Lifetime, DisposeWithdrawsWhatANestedPumpWouldDeliver) {
  TestListener outer(loop, journal, "outer");
  TestListener inner(loop, journal, "inner");
  outer.listenTo(propertyOf(&unit, 1));
  inner.listenTo(propertyOf(&unit, 1));
  outer.onCall = [&](const Call&) {
    inner.dispose();
    pumpAt(0);
  };
  notify(propertyOf(&unit, 1));
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("outer: property 1"));
}

TEST_F(Lifetime, AListenerMadeAfterTheLastOneWasDisposedOfHearsNoEarlierChange) {
  auto listener = std::make_unique<TestListener>(loop, journal, "former");
  listener->listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  listener.reset();

  TestListener next(loop, journal, "next");
  next.listenTo(valueOf(&unit, 0));
  EXPECT_EQ(pumpAt(0), std::nullopt);
  set(&unit, 0, 2);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("next: value 0 = 2"));
}

TEST_F(Lifetime, DestroyingAUnitWithdrawsItsQueuedEvents) {
  auto dying = std::make_unique<FakeUnit>();
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(dying.get(), 0));
  listener.listenTo(propertyOf(dying.get(), 1));
  listener.listenTo(propertyOf(&unit, 2));
  set(dying.get(), 0, 1);
  notify(propertyOf(dying.get(), 1));
  notify(propertyOf(&unit, 2));
  dying.reset();
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, ElementsAre("property 2"));
}

TEST_F(Lifetime, DestroyingAUnitWithdrawsAValueThatWaitsForItsInterval) {
  auto dying = std::make_unique<FakeUnit>();
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(dying.get(), 0));
  set(dying.get(), 0, 1);
  pumpAt(0);
  set(dying.get(), 0, 2);
  EXPECT_EQ(pumpAt(1), at(50));
  dying.reset();
  EXPECT_EQ(pumpAt(2), std::nullopt);
  pumpAt(60);
  EXPECT_THAT(journal, ElementsAre("value 0 = 1"));
}

TEST_F(Lifetime, AUnitMayBeDestroyedInsideACallback) {
  auto dying = std::make_unique<FakeUnit>();
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(dying.get(), 1));
  listener.listenTo(valueOf(dying.get(), 0));
  listener.onCall = [&](const Call&) { dying.reset(); };
  notify(propertyOf(dying.get(), 1));
  notify(propertyOf(dying.get(), 1));
  set(dying.get(), 0, 1);
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, ElementsAre("property 1"));
}

TEST_F(Lifetime, AUnitAtTheAddressOfADestroyedOneIsAnotherUnit) {
  std::optional<FakeUnit> place(std::in_place);
  FakeUnit* const address = &*place;
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(address, 0));
  set(address, 0, 1);
  place.reset();
  place.emplace();
  ASSERT_EQ(&*place, address);

  set(address, 0, 2);
  EXPECT_EQ(pumpAt(0), std::nullopt);
  EXPECT_THAT(journal, IsEmpty());

  listener.listenTo(valueOf(address, 0));
  set(address, 0, 3);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 3"));
}

TEST_F(Lifetime, AListenerMayOutliveItsRunLoop) {
  std::optional<audio_unit::RunLoop> shortLived(std::in_place);
  TestListener orphan(*shortLived, journal);
  orphan.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  shortLived.reset();

  const AudioUnitEvent event = valueOf(&unit, 1);
  EXPECT_EQ(AUEventListenerAddEventType(orphan.reference, nullptr, &event), noErr);
  EXPECT_EQ(set(&unit, 0, 2, orphan.reference), noErr);
  EXPECT_EQ(AUListenerDispose(std::exchange(orphan.reference, nullptr)), noErr);
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Lifetime, AListenerMayOutliveItsThread) {
  std::unique_ptr<TestListener> orphan;
  std::thread([&] {
    orphan = std::make_unique<TestListener>(*CFRunLoopGetCurrent(), journal);
    orphan->listenTo(valueOf(&unit, 0));
    set(&unit, 0, 1);
  }).join();
  EXPECT_EQ(set(&unit, 0, 2), noErr);
  orphan.reset();
  EXPECT_THAT(journal, IsEmpty());
}

TEST_F(Lifetime, ARunLoopDeliversNothingThatWaitedInAnEarlierOne) {
  for (int i = 0; i < 5; ++i) {
    audio_unit::RunLoop next;
    TestListener listener(next, journal);
    listener.listenTo(valueOf(&unit, 0));
    EXPECT_FALSE(next.hasWakeUp());
    EXPECT_EQ(next.pump(at(0)), std::nullopt);
    next.setWakeUp([] {});
    set(&unit, 0, 1);
  }
  EXPECT_THAT(journal, IsEmpty());
}

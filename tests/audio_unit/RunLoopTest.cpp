#include <memory>
#include <thread>

#include "ListenerFixture.h"

class RunLoop : public ListenerFixture {
 protected:
  void SetUp() override {
    listener.listenTo(valueOf(&unit, 0));
    listener.listenTo(valueOf(&unit, 1));
    listener.listenTo(propertyOf(&unit, 5301));
  }

  TestListener listener{loop, journal};
  int wakeUps = 0;
};

TEST_F(RunLoop, IsOnePerThread) {
  const CFRunLoopRef mine = CFRunLoopGetCurrent();
  EXPECT_NE(mine, nullptr);
  EXPECT_EQ(CFRunLoopGetCurrent(), mine);
  CFRunLoopRef others = nullptr;
  std::thread([&] { others = CFRunLoopGetCurrent(); }).join();
  EXPECT_NE(others, nullptr);
  EXPECT_NE(others, mine);
}

TEST_F(RunLoop, HasNothingDueWhenNothingIsWaiting) {
  EXPECT_EQ(pumpAt(0), std::nullopt);
}

TEST_F(RunLoop, ReturnsTheEarliestTimeOfAllThatWaits) {
  set(&unit, 0, 1);
  EXPECT_EQ(pumpAt(0), std::nullopt);
  set(&unit, 1, 1);
  EXPECT_EQ(pumpAt(20), std::nullopt);
  set(&unit, 1, 2);
  EXPECT_EQ(pumpAt(30), at(70));
  set(&unit, 0, 2);
  EXPECT_EQ(pumpAt(40), at(50));
  EXPECT_EQ(pumpAt(50), at(70));
  EXPECT_EQ(pumpAt(70), std::nullopt);
}

TEST_F(RunLoop, IsWokenOnceWhenItGetsWorkWhileIdle) {
  loop.setWakeUp([&] { ++wakeUps; });
  EXPECT_EQ(wakeUps, 0);
  set(&unit, 0, 1);
  set(&unit, 0, 2);
  notify(propertyOf(&unit, 5301));
  EXPECT_EQ(wakeUps, 1);

  pumpAt(0);
  EXPECT_EQ(wakeUps, 1);
  set(&unit, 0, 3);
  EXPECT_EQ(wakeUps, 2);
}

TEST_F(RunLoop, IsWokenForAnEventThatACallbackCauses) {
  loop.setWakeUp([&] { ++wakeUps; });
  listener.onCall = [&](const Call&) { set(&unit, 1, 1); };
  set(&unit, 0, 1);
  pumpAt(0);
  EXPECT_EQ(wakeUps, 2);
}

TEST_F(RunLoop, IsWokenAtOnceByANewHookWhenSomethingWaits) {
  set(&unit, 0, 1);
  loop.setWakeUp([&] { ++wakeUps; });
  EXPECT_EQ(wakeUps, 1);
}

TEST_F(RunLoop, IsNotWokenForChangesThatNobodyListensTo) {
  loop.setWakeUp([&] { ++wakeUps; });
  listener.dispose();
  set(&unit, 0, 1);
  EXPECT_EQ(wakeUps, 0);
  EXPECT_EQ(pumpAt(0), std::nullopt);
}

TEST_F(RunLoop, ForgetsARemovedHook) {
  EXPECT_FALSE(loop.hasWakeUp());
  auto counter = std::make_shared<int>(0);
  loop.setWakeUp([counter] { ++*counter; });
  EXPECT_TRUE(loop.hasWakeUp());

  loop.setWakeUp(nullptr);
  EXPECT_FALSE(loop.hasWakeUp());
  EXPECT_EQ(counter.use_count(), 1);
  set(&unit, 0, 1);
  EXPECT_EQ(*counter, 0);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 1"));
}

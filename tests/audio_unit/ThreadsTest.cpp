#include <array>
#include <atomic>
#include <latch>
#include <memory>
#include <thread>
#include <vector>

#include "ListenerFixture.h"

namespace {

constexpr int kThreads = 4;

/// Runs `work(index)` on several threads at once, and `meanwhile` on this one until they are done.
template <class Work, class Meanwhile>
void runThreads(const Work& work, const Meanwhile& meanwhile) {
  std::latch start(kThreads + 1);
  std::atomic<int> running{kThreads};
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&, i] {
      start.arrive_and_wait();
      work(i);
      --running;
    });
  }
  start.arrive_and_wait();
  while (running > 0) meanwhile();
  for (std::thread& thread : threads) thread.join();
}

}  // namespace

class Threads : public ListenerFixture {
 protected:
  /// Each pump advances time by about a quarter of the interval.
  void pumpOn() { next_ = pumpAt(ms_ += 12); }
  void pumpUntilQuiet() {
    do pumpOn();
    while (next_);
  }

 private:
  int ms_ = 0;
  std::optional<TimePoint> next_;
};

TEST_F(Threads, DeliverOnTheThreadOfTheListenerOnly) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  std::thread::id calledOn;
  listener.onCall = [&](const Call&) { calledOn = std::this_thread::get_id(); };

  std::thread([&] { set(&unit, 0, 3); }).join();
  EXPECT_THAT(journal, IsEmpty());
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 3"));
  EXPECT_EQ(calledOn, std::this_thread::get_id());
}

TEST_F(Threads, DeliverOnAnotherThreadWhatTheMainThreadChanges) {
  std::latch ready(1);
  std::latch changed(1);
  std::thread listening([&] {
    TestListener listener(*CFRunLoopGetCurrent(), journal);
    listener.listenTo(valueOf(&unit, 0));
    ready.count_down();
    changed.wait();
    CFRunLoopGetCurrent()->pump(at(0));
  });
  ready.wait();
  set(&unit, 0, 3);
  CFRunLoopGetCurrent()->pump(at(0));
  changed.count_down();
  listening.join();
  EXPECT_THAT(journal, ElementsAre("value 0 = 3"));
}

TEST_F(Threads, LoseNoneOfTheEventsThatFitAndKeepTheOrderOfEachThread) {
  constexpr int kGestures = 400;
  static_assert(2 * kGestures * kThreads <= 4096);
  TestListener listener(loop, journal);
  for (UInt32 id = 0; id < kThreads; ++id) {
    listener.listenTo(beginOf(&unit, id));
    listener.listenTo(endOf(&unit, id));
  }
  std::array<int, kThreads> begun{};
  std::array<int, kThreads> ended{};
  listener.onCall = [&](const Call& call) {
    const auto id = call.event.mArgument.mParameter.mParameterID;
    if (call.event.mEventType == kAudioUnitEvent_BeginParameterChangeGesture) {
      EXPECT_EQ(begun[id]++, ended[id]);
    } else {
      EXPECT_EQ(++ended[id], begun[id]);
    }
  };

  runThreads(
      [&](int thread) {
        const auto id = static_cast<UInt32>(thread);
        for (int i = 0; i < kGestures; ++i) {
          notify(beginOf(&unit, id));
          notify(endOf(&unit, id));
        }
      },
      [&] { pumpOn(); });
  pumpUntilQuiet();

  EXPECT_THAT(begun, testing::Each(kGestures));
  EXPECT_THAT(ended, testing::Each(kGestures));
}

TEST_F(Threads, EndWithTheValuesOfTheUnitHoweverManyChangesOverflow) {
  TestListener listener(loop, journal);
  for (UInt32 id = 0; id < kThreads; ++id) listener.listenTo(valueOf(&unit, id));
  std::array<float, kThreads> told{};
  listener.onCall = [&](const Call& call) {
    told[call.event.mArgument.mParameter.mParameterID] = call.value;
  };

  runThreads(
      [&](int thread) {
        for (int i = 1; i <= 20000; ++i) {
          set(&unit, static_cast<UInt32>(thread), static_cast<float>(i));
        }
      },
      [&] { pumpOn(); });
  pumpUntilQuiet();

  EXPECT_THAT(told, testing::Each(20000.0F));
}

TEST_F(Threads, MayAnnounceWhileTheOwnerRegistersAndDisposes) {
  TestListener constant(loop, journal, "constant");
  constant.listenTo(propertyOf(&unit, 1));
  UInt32 round = 0;

  runThreads(
      [&](int thread) {
        for (int i = 0; i < 3000; ++i) {
          set(&unit, static_cast<UInt32>(thread), static_cast<float>(i));
          unit.announceProperty(1);
        }
      },
      [&] {
        TestListener passing(loop, journal, "passing");
        passing.listenTo(valueOf(&unit, round % kThreads));
        passing.listenTo(propertyOf(&unit, 1));
        passing.listenTo(propertyOf(&unit, 2));
        pumpOn();
        ++round;
        journal.clear();
      });
  journal.clear();
  pumpUntilQuiet();
  unit.announceProperty(1);
  pumpOn();
  ASSERT_FALSE(journal.empty());
  EXPECT_EQ(journal.back(), "constant: property 1");
}

TEST_F(Threads, MayAnnounceWhileRunLoopsComeAndGo) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  std::atomic<int> wakeUps{0};
  std::atomic<int> calls{0};

  runThreads(
      [&](int thread) {
        if (thread < 2) {
          for (int i = 0; i < 5000; ++i) set(&unit, 0, static_cast<float>(i));
          return;
        }
        for (int i = 0; i < 100; ++i) {
          std::thread([&] {
            Journal ownJournal;
            audio_unit::RunLoop& ownLoop = *CFRunLoopGetCurrent();
            ownLoop.setWakeUp([&] { ++wakeUps; });
            TestListener own(ownLoop, ownJournal);
            own.onCall = [&](const Call&) { ++calls; };
            own.listenTo(valueOf(&unit, 0));
            set(&unit, 0, 1);
            ownLoop.pump(at(0));
            ownLoop.pump(at(50));
          }).join();
        }
      },
      [&] { pumpOn(); });

  EXPECT_GE(wakeUps, 200);
  EXPECT_GE(calls, 200);
}

TEST_F(Threads, MayChangeTheHookWhileOthersWake) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 1));
  std::atomic<int> wakeUps{0};

  runThreads(
      [&](int) {
        while (wakeUps < 100) {
          unit.announceProperty(1);
          std::this_thread::yield();
        }
      },
      [&] {
        // What a hook refers to may be destroyed as soon as the hook has been replaced.
        auto context = std::make_unique<std::atomic<int>*>(&wakeUps);
        loop.setWakeUp([pointer = context.get()] { ++**pointer; });
        pumpOn();
        loop.setWakeUp(nullptr);
        journal.clear();
      });

  EXPECT_GE(wakeUps, 100);
}

TEST_F(Threads, NoLongerRunTheHookWhenItsRemovalReturns) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 1));
  std::latch hasEntered(1);
  std::atomic<bool> hasLeft{false};
  loop.setWakeUp([&] {
    hasEntered.count_down();
    for (int i = 0; i < 10000; ++i) std::this_thread::yield();
    hasLeft = true;
  });

  std::thread announcing([&] { unit.announceProperty(1); });
  hasEntered.wait();
  loop.setWakeUp(nullptr);
  EXPECT_TRUE(hasLeft);
  announcing.join();
}

TEST_F(Threads, NeverLeaveALoopAsleepThatHasWork) {
  TestListener listener(loop, journal);
  listener.listenTo(propertyOf(&unit, 1));
  std::atomic<bool> isAwake{false};
  loop.setWakeUp([&] { isAwake = true; });

  // The owner pumps only when it is woken or a pump said that more is due.
  bool isDueAtOnce = false;
  const auto pumpWhenWoken = [&] {
    if (isAwake.exchange(false) || isDueAtOnce) isDueAtOnce = pumpAt(0).has_value();
  };
  runThreads(
      [&](int) {
        for (int i = 0; i < 1000; ++i) unit.announceProperty(1);
      },
      pumpWhenWoken);
  while (isAwake || isDueAtOnce) pumpWhenWoken();

  EXPECT_EQ(journal.size(), 1000U * kThreads);
}

TEST_F(Threads, MayEndAUnitWhileItsListenerIsPumped) {
  TestListener listener(loop, journal);
  for (int round = 0; round < 50; ++round) {
    auto dying = std::make_unique<FakeUnit>();
    listener.listenTo(valueOf(dying.get(), 0));
    listener.listenTo(propertyOf(dying.get(), 1));
    std::atomic<bool> isOver{false};
    std::thread owner([&] {
      for (int i = 0; i < 20; ++i) {
        set(dying.get(), 0, static_cast<float>(i));
        dying->announceProperty(1);
      }
      dying.reset();
      isOver = true;
    });
    while (!isOver) pumpOn();
    owner.join();
    journal.clear();
    pumpOn();
    EXPECT_THAT(journal, IsEmpty());
  }
}

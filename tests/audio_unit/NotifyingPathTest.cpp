#include <memory>
#include <mutex>
#include <thread>

#include "CallTraps.h"
#include "ListenerFixture.h"

/// Makes changes of every kind on another thread, as an audio thread may.
class NotifyingPath : public ListenerFixture {
 protected:
  void SetUp() override {
    listener.listenTo(valueOf(&unit, 0));
    listener.listenTo(propertyOf(&unit, 1));
    loop.setWakeUp([this] { ++wakeUps; });
  }

  CallTraps::Counts makeChangesOnAThread(int times) {
    CallTraps::Counts counts;
    std::thread([&] {
      const CallTraps traps;
      for (int i = 0; i < times; ++i) {
        set(&unit, 0, static_cast<float>(i), listener.reference);
        set(&unit, 0, static_cast<float>(i));
        notify(beginOf(&unit, 0));
        notify(endOf(&unit, 0));
        notify(valueOf(&unit, 0));
        unit.announceParameter(0);
        unit.announceProperty(1);
      }
      counts = traps.counts();
    }).join();
    return counts;
  }

  TestListener listener{loop, journal};
  std::atomic<int> wakeUps{0};
};

TEST_F(NotifyingPath, IsWatchedByTrapsThatWork) {
  std::mutex mutex;
  const CallTraps traps;
  std::unique_lock(mutex).unlock();
  TestListener another(loop, journal);
  another.dispose();
  EXPECT_GT(traps.counts().allocations, 0) << "a new listener is allocated in the library";
  EXPECT_GT(traps.counts().frees, 0);
  if (CallTraps::trapsLocks()) {
    EXPECT_EQ(traps.counts().locks, 1);
  }
}

TEST_F(NotifyingPath, NeitherAllocatesNorLocks) {
  const CallTraps::Counts counts = makeChangesOnAThread(10);
  EXPECT_EQ(counts.allocations, 0);
  EXPECT_EQ(counts.frees, 0);
  EXPECT_EQ(counts.locks, 0);
  EXPECT_EQ(wakeUps, 1);
  pumpAt(0);
  EXPECT_EQ(journal.size(), 11U);
}

TEST_F(NotifyingPath, NeitherAllocatesNorLocksWhenTheQueueOverflows) {
  const CallTraps::Counts counts = makeChangesOnAThread(1000);
  EXPECT_EQ(counts.allocations, 0);
  EXPECT_EQ(counts.frees, 0);
  EXPECT_EQ(counts.locks, 0);
  pumpAt(0);
  EXPECT_EQ(journal.back(), "property 1");
}

TEST_F(NotifyingPath, NeitherAllocatesNorLocksWithSeveralRunLoopsOrNone) {
  auto other = std::make_unique<audio_unit::RunLoop>();
  TestListener there(*other, journal);
  there.listenTo(valueOf(&unit, 0));
  for (int i = 0; i < 2; ++i) {
    const CallTraps::Counts counts = makeChangesOnAThread(10);
    EXPECT_EQ(counts.allocations, 0);
    EXPECT_EQ(counts.frees, 0);
    EXPECT_EQ(counts.locks, 0);
    listener.dispose();
    other.reset();
  }
}

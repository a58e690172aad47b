#include <gtest/gtest.h>
#include <semaphore.h>
#include <unistd.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <thread>

#include "AudioThreadTraps.h"
#include "RandomOperator.h"
#include "Rig.h"

namespace {

constexpr std::size_t kBlock = 64;
constexpr std::size_t kFrames = 200000;

/// Renders in real time amid every kind of change, made between blocks and on another thread.
class AudioThread : public testing::Test {
 protected:
  explicit AudioThread(double sampleRate = 48000)
      : rig_({.sampleRate = sampleRate, .channels = 2, .maximumFrames = kBlock}) {
    rig_.setOffline(false);
    output_ = silence(2, kFrames);
  }

  /// Renders block after block with traps, and calls `between` without them in between.
  template <typename Between>
  AudioThreadTraps::Counts renderTrapped(Between between) {
    AudioThreadTraps::Counts sum;
    for (std::size_t at = 0; at + kBlock <= kFrames; at += kBlock) {
      between(at);
      const float* in[] = {input_[0].data() + at, input_[1].data() + at};
      float* out[] = {output_[0].data() + at, output_[1].data() + at};
      AudioThreadTraps traps;
      rig_.unit().render(in, out, kBlock);
      const auto counts = traps.counts();
      sum.allocations += counts.allocations;
      sum.locks += counts.locks;
      sum.waits += counts.waits;
      sum.wakeUps += counts.wakeUps;
    }
    return sum;
  }

  void operate(std::size_t at) {
    if (at % 12800 == 0) rig_.setPreset(static_cast<SInt32>(at / 12800 % 4));
    if (at % 9600 == 0) rig_.monitorSource(at / 9600 % 2 == 1);
    if (at % 32000 == 0) {
      rig_.setProperty(velk::kConverterProperty_ResetPeakStats, 1);
    }
  }

  Rig rig_;
  const Signal input_ = music(2, kFrames, 48000);
  Signal output_;
};

TEST_F(AudioThread, NeitherAllocatesNorLocksNorWaits) {
  const auto counts = renderTrapped([&](std::size_t at) { operate(at); });
  EXPECT_EQ(counts.allocations, 0);
  EXPECT_EQ(counts.locks, 0);
  EXPECT_EQ(counts.waits, 0);
}

TEST_F(AudioThread, WakesTheWorkerAtMostOncePerAccessUnit) {
  const auto counts = renderTrapped([&](std::size_t at) { operate(at); });
  EXPECT_GT(counts.wakeUps, 0);
  EXPECT_LE(counts.wakeUps, static_cast<int>(kFrames / 2048));
}

TEST_F(AudioThread, DoesNoneOfItWhileAnotherThreadChangesEverythingAtRandom) {
  RandomOperator other(rig_.unit(), 11);
  const auto operating = other.operateAllTheTime();
  const auto counts = renderTrapped([](std::size_t) {});
  EXPECT_EQ(counts.allocations, 0);
  EXPECT_EQ(counts.locks, 0);
  EXPECT_EQ(counts.waits, 0);
  EXPECT_LE(counts.wakeUps, static_cast<int>(kFrames / 2048));
}

TEST_F(AudioThread, MakesNoSystemCallButTheWakeUpWhateverAnotherThreadChanges) {
  std::atomic<bool> isTrapped{false};
  std::atomic<int> callsWhileRendering{-1};
  std::atomic<int> ownCalls{-1};
  RandomOperator other(rig_.unit(), 12);
  const auto operating = other.operateAllTheTime();
  std::thread audio([&] {
    isTrapped = trapSystemCalls();
    if (!isTrapped) return;
    const int before = trappedSystemCalls();
    getppid();
    ownCalls = trappedSystemCalls() - before;
    const int start = trappedSystemCalls();
    for (std::size_t at = 0; at + kBlock <= kFrames; at += kBlock) {
      const float* in[] = {input_[0].data() + at, input_[1].data() + at};
      float* out[] = {output_[0].data() + at, output_[1].data() + at};
      rig_.unit().render(in, out, kBlock);
    }
    callsWhileRendering = trappedSystemCalls() - start;
  });
  audio.join();
  if (!isTrapped) GTEST_SKIP() << "this system lets no thread filter its system calls";
  EXPECT_EQ(ownCalls, 1) << "the trap catches nothing";
  EXPECT_EQ(callsWhileRendering, 0);
}

class HighRateAudioThread : public AudioThread {
 protected:
  HighRateAudioThread() : AudioThread(192000) {}
};

TEST_F(HighRateAudioThread, WakesTheWorkerAtMostOncePerAccessUnitOfTheCodec) {
  const auto counts = renderTrapped([&](std::size_t at) { operate(at); });
  EXPECT_EQ(counts.allocations + counts.locks + counts.waits, 0);
  EXPECT_GT(counts.wakeUps, 0);
  EXPECT_LE(counts.wakeUps, static_cast<int>(kFrames / 4096));
}

TEST_F(AudioThread, TrapsCatchWhatTheyAreFor) {
  AudioThreadTraps traps;
  // Volatile, because a compiler may elide the allocation otherwise.
  int* volatile memory = new int(1);
  delete memory;
  EXPECT_GE(traps.counts().allocations, 2);
  {
    std::mutex mutex;
    const std::scoped_lock lock(mutex);
  }
  EXPECT_EQ(traps.counts().locks, 1);
  std::mutex tried;
  if (tried.try_lock()) tried.unlock();
  EXPECT_EQ(traps.counts().locks, 2);
  std::shared_mutex shared;
  std::shared_lock(shared).unlock();
  std::unique_lock(shared).unlock();
  EXPECT_EQ(traps.counts().locks, 4);
  sem_t semaphore;
  sem_init(&semaphore, 0, 0);
  sem_post(&semaphore);
  sem_wait(&semaphore);
  sem_destroy(&semaphore);
  EXPECT_EQ(traps.counts().wakeUps, 1);
  EXPECT_EQ(traps.counts().waits, 1);
}

}  // namespace

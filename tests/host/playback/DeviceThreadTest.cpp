#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

#include "converter/rig/AudioThreadTraps.h"
#include "host/playback/RateConvertingRenderer.h"

namespace {

class Tone : public host::BlockRenderer {
 public:
  void renderBlock(float* const* planes, std::uint32_t frames) noexcept override {
    for (std::uint32_t i = 0; i < frames; ++i) planes[0][i] = planes[1][i] = i % 7 < 3 ? 0.5F : 0;
  }
};

constexpr std::uint32_t kUnitRates[] = {32000, 44100, 48000, 88200, 96000, 176400, 192000};
constexpr std::uint32_t kDeviceRates[] = {22050, 32000, 44100, 48000, 88200, 96000, 176400, 192000};

/// Plays five seconds in blocks of various lengths.
void play(host::RateConvertingRenderer& renderer, std::uint32_t rate) {
  static float samples[2][2048];
  float* const planes[] = {samples[0], samples[1]};
  std::uint32_t block = 1;
  for (std::uint32_t done = 0; done < rate * 5; done += block) {
    block = block * 7919 % 2003 + 1;
    renderer.renderBlock(planes, block);
  }
}

TEST(DeviceThread, NeitherAllocatesNorLocksNorWaitsWhereTheRateIsConverted) {
  Tone tone;
  for (const auto from : kUnitRates) {
    for (const auto to : kDeviceRates) {
      if (from == to) continue;
      host::RateConvertingRenderer renderer(tone, {from, 2}, to);
      const AudioThreadTraps traps;
      play(renderer, to);
      const auto counts = traps.counts();
      EXPECT_EQ(counts.allocations, 0) << from << " to " << to;
      EXPECT_EQ(counts.locks + counts.waits + counts.wakeUps, 0) << from << " to " << to;
    }
  }
}

TEST(DeviceThread, MakesNoSystemCallWhereTheRateIsConverted) {
  Tone tone;
  host::RateConvertingRenderer renderer(tone, {44100, 2}, 48000);
  std::atomic<bool> isTrapped{false};
  std::atomic<int> calls{-1};
  std::thread audio([&] {
    isTrapped = trapSystemCalls();
    if (!isTrapped) return;
    const int before = trappedSystemCalls();
    play(renderer, 48000);
    calls = trappedSystemCalls() - before;
  });
  audio.join();
  if (!isTrapped) GTEST_SKIP() << "this system lets no thread filter its system calls";
  EXPECT_EQ(calls, 0);
}

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <tuple>

#include "BurstyDevice.h"
#include "Rig.h"

namespace {

using std::chrono::steady_clock;

class Bursts : public testing::TestWithParam<std::tuple<double, std::size_t, std::size_t>> {};

TEST_P(Bursts, HaveNoHoles) {
  const auto [rate, period, call] = GetParam();
  // A sound server's usual two seconds.
  BurstyDevice device(rate, static_cast<std::size_t>(2 * rate), period, call);
  Rig rig({.sampleRate = rate, .channels = 2, .maximumFrames = static_cast<UInt32>(call)},
          device.clock());
  rig.setOffline(false);
  const Signal input = smoothNoise(2, static_cast<std::size_t>(5 * rate), rate, 2200);
  rig.renderInBlocks(input, [&](std::size_t) { return device.nextCall(); });
  EXPECT_EQ(rig.missedFrames(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Unit, Bursts,
                         testing::Combine(testing::Values(32000.0, 44100.0, 48000.0, 88200.0,
                                                          96000.0, 176400.0, 192000.0),
                                          testing::Values(1024U, 4096U, 10240U, 13000U),
                                          testing::Values(512U, 8192U)));

/// Whoever renders in strict real time is never kept waiting, even when nothing comes.
TEST(Waiting, IsNotDoneInStrictRealTime) {
  constexpr double kRate = 48000;
  BurstyDevice device(kRate, 512, 512, 512);
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = 512}, device.clock());
  rig.holdWorker();
  rig.setOffline(false);
  const auto start = steady_clock::now();
  rig.renderInBlocks(smoothNoise(2, 240000, kRate, 2200),
                     [&](std::size_t) { return device.nextCall(); });
  // Each of 470 calls waiting even once would take seconds.
  EXPECT_GT(rig.missedFrames(), 0U);
  EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(2));
}

/// What a host renders off line to get somewhere, no device has in its buffer.
TEST(Waiting, IsNotDoneForWhatWasRenderedOffLine) {
  BurstyDevice device(48000, 512, 512, 512);
  Rig rig({.sampleRate = 48000, .channels = 2, .maximumFrames = 512}, device.clock());
  rig.render(silence(2, 96000));
  rig.unit().waitForCodec();
  rig.holdWorker();
  rig.setOffline(false);
  const auto start = steady_clock::now();
  rig.renderInBlocks(silence(2, 48000), [&](std::size_t) { return device.nextCall(); });
  EXPECT_GT(rig.missedFrames(), 0U);
  EXPECT_LT(steady_clock::now() - start, std::chrono::milliseconds(150));
}

/// A worker that never gets there costs a caller no more than half of his lead.
TEST(Waiting, EndsInTime) {
  constexpr double kRate = 48000;
  steady_clock::time_point now{std::chrono::hours(1)};
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = 512}, [&now] { return now; });
  rig.holdWorker();
  rig.setOffline(false);
  // The latency's silence needs no worker; then a lead of 0.32 s and one call.
  const std::size_t silent = rig.unit().latency() / 512 * 512;
  rig.render(silence(2, silent));
  const auto start = steady_clock::now();
  rig.render(silence(2, 1024), 1024);
  const std::chrono::duration<double> took = steady_clock::now() - start;
  EXPECT_GT(rig.missedFrames(), 0U);
  const double lead = static_cast<double>(silent) / kRate;
  EXPECT_GT(took.count(), 0.4 * lead);
  EXPECT_LT(took.count(), lead);
}

}  // namespace

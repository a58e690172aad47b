#include <gtest/gtest.h>

#include <random>

#include "Rig.h"

namespace {

/// Changes every control now and then, at blocks that depend only on the position.
void operate(Rig& rig, std::size_t at) {
  if (at == 16000) rig.setPreset(2);
  if (at == 28000) rig.monitorSource(true);
  if (at == 36000) rig.monitorSource(false);
  if (at == 44000) rig.setSetting(2, 0, 5);
  if (at == 52000) rig.setSetting(0, 2, 90);
}

TEST(Offline, IsBitForBitRealTime) {
  const Signal input = music(2, 80000, 44100);
  Rig offline;
  const Signal expected = offline.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
    operate(offline, at);
    return 400;
  });
  ASSERT_EQ(offline.missedFrames(), 0U);

  // In real time nothing waits for the worker, so give it all the time it needs between blocks.
  Rig rig;
  rig.setOffline(false);
  const Signal output = rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
    rig.unit().waitForCodec();
    operate(rig, at);
    return 400;
  });
  ASSERT_EQ(rig.missedFrames(), 0U);
  EXPECT_EQ(output, expected);
}

TEST(Offline, GivesTheSameEveryTime) {
  const Signal input = music(2, 60000, 44100);
  const auto render = [&] {
    Rig rig;
    return rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
      operate(rig, at);
      return 400;
    });
  };
  EXPECT_EQ(render(), render());
}

class BlockSizes : public testing::TestWithParam<UInt32> {};

TEST_P(BlockSizes, DoNotMatterForAnySignal) {
  const UInt32 maximumFrames = GetParam();
  const Signal input = music(2, 50000, 48000);
  for (const bool source : {false, true}) {
    Rig even({.sampleRate = 48000, .channels = 2, .maximumFrames = maximumFrames});
    Rig uneven({.sampleRate = 48000, .channels = 2, .maximumFrames = maximumFrames});
    even.monitorSource(source);
    uneven.monitorSource(source);
    std::mt19937 random(5);
    std::uniform_int_distribution<std::size_t> length(1, maximumFrames);
    EXPECT_EQ(uneven.renderInBlocks(input, [&](std::size_t) { return length(random); }),
              even.render(input, maximumFrames));
    EXPECT_EQ(uneven.missedFrames(), 0U);
  }
}

INSTANTIATE_TEST_SUITE_P(UpTo, BlockSizes, testing::Values(1U, 7U, 64U, 1000U, 2048U, 8192U));

TEST(Render, TakesInputAndOutputInTheSamePlanes) {
  const Signal input = music(2, 40000, 44100);
  Rig separate;
  const Signal expected = separate.render(input, 1000);
  Rig rig;
  Signal planes = input;
  for (std::size_t at = 0; at < 40000; at += 1000) {
    float* both[] = {planes[0].data() + at, planes[1].data() + at};
    rig.unit().render(both, both, 1000);
  }
  EXPECT_EQ(planes, expected);
}

TEST(Render, SplitsABlockAboveTheMaximum) {
  const Signal input = music(2, 40000, 44100);
  Rig rig;
  Rig large;
  EXPECT_EQ(large.render(input, 40000), rig.render(input, 1024));
}

TEST(Render, OfNoFramesDoesNothing) {
  Rig rig;
  Rig other;
  const Signal input = music(2, 20000, 44100);
  const Signal output = rig.renderInBlocks(input, [&](std::size_t) -> std::size_t {
    rig.unit().render(nullptr, nullptr, 0);
    return 1000;
  });
  EXPECT_EQ(output, other.render(input, 1000));
}

TEST(Render, IsSilentUntilTheFirstSampleComesOut) {
  Rig rig;
  const Signal output = rig.render(music(2, 30000, 44100));
  const std::size_t latency = rig.unit().latency();
  EXPECT_EQ(rms(output[0], 0, latency), 0);
  EXPECT_GT(rms(output[0], latency, latency + 2000), 0.01);
}

}  // namespace

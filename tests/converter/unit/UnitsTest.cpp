#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "Rig.h"

namespace {

TEST(Units, InTwoThreadsAtOnceEachGiveWhatTheyGiveAlone) {
  const Signal input = music(2, 60000, 44100);
  const auto render = [&](SInt32 preset) {
    Rig rig;
    rig.setPreset(preset);
    return rig.render(input);
  };
  const Signal plus = render(0);
  const Signal streaming = render(2);
  Signal plusBeside;
  Signal streamingBeside;
  std::thread beside([&] { plusBeside = render(0); });
  streamingBeside = render(2);
  beside.join();
  EXPECT_EQ(plusBeside, plus);
  EXPECT_EQ(streamingBeside, streaming);
}

TEST(Units, CanGoInMidPlay) {
  const Signal input = music(2, 20000, 44100);
  for (int i = 0; i < 20; ++i) {
    Rig rig;
    rig.setOffline(i % 2 == 0);
    rig.render(part(input, 0, static_cast<std::size_t>(i) * 997 + 1));
    rig.setPreset(i % 4);
    rig.render(part(input, 0, 500));
  }
}

TEST(Units, CanGoWithoutEverPlaying) {
  for (int i = 0; i < 5; ++i) Rig rig;
}

/// Properties and parameters on one thread while another renders, as in a host.
TEST(Units, CanBeOperatedWhileTheyRender) {
  const Signal input = music(2, 100000, 44100);
  Rig rig;
  std::atomic<bool> done{false};
  std::thread audio([&] {
    rig.render(input, 256);
    done = true;
  });
  UInt32 turn = 0;
  while (!done) {
    rig.setPreset(static_cast<SInt32>(turn % 4));
    rig.setParameter(velk::kConverterParam_RateQuality, static_cast<float>(turn % 17));
    rig.monitorSource(turn % 3 == 0);
    rig.property(velk::kConverterProperty_PeakStats);
    rig.property(converter::kConverterProperty_BitRate);
    rig.setProperty(velk::kConverterProperty_ResetPeakStats, 1);
    ++turn;
    std::this_thread::yield();
  }
  audio.join();
  EXPECT_GT(turn, 0U);
  EXPECT_EQ(rig.missedFrames(), 0U);
}

}  // namespace

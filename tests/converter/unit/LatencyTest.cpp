#include <gtest/gtest.h>

#include <cmath>

#include "Rig.h"

namespace {

TEST(Latency, IsTheLongestCodecDelayTwoAccessUnitsAndTheLargestBlock) {
  for (const UInt32 maximumFrames : {1U, 64U, 512U, 4096U, 8192U}) {
    Rig rig({.sampleRate = 48000, .channels = 2, .maximumFrames = maximumFrames});
    EXPECT_EQ(rig.unit().latency(), 7106 + 2048 + 2048 + maximumFrames);
  }
}

TEST(Latency, IsTheSameForEverySampleRateThatAacKnowsChannelCountAndSetting) {
  for (const double sampleRate : {32000.0, 44100.0, 48000.0, 88200.0, 96000.0}) {
    for (const UInt32 channels : {1U, 2U}) {
      Rig rig({.sampleRate = sampleRate, .channels = channels, .maximumFrames = 4096});
      for (const float format : {0.0F, 1.0F, 2.0F}) {
        rig.setSetting(format, velk::kStrategy_ABR, 10);
        EXPECT_EQ(rig.unit().latency(), 15298U);
        EXPECT_DOUBLE_EQ(rig.property(audio_unit::latencyProperty), 15298 / sampleRate);
      }
    }
  }
}

TEST(Latency, AboveTheRatesOfAacHasTheResamplersBesides) {
  for (const double sampleRate : {176400.0, 192000.0}) {
    Rig rig({.sampleRate = sampleRate, .channels = 2, .maximumFrames = 4096});
    EXPECT_EQ(rig.unit().latency(), 2 * (7106 + 2048 + 2048) + 2048 + 2 * 2048 + 4096U);
    EXPECT_DOUBLE_EQ(rig.property(audio_unit::latencyProperty), 32644 / sampleRate);
  }
}

/// Index of the first sample above a tenth of full scale.
std::size_t onset(const std::vector<float>& samples) {
  std::size_t i = 0;
  while (i < samples.size() && std::fabs(samples[i]) < 0.1F) ++i;
  return i;
}

TEST(Latency, IsWhatTheAudioShows) {
  for (const UInt32 maximumFrames : {128U, 4096U}) {
    Rig rig({.sampleRate = 48000, .channels = 1, .maximumFrames = maximumFrames});
    Signal impulse = silence(1, 40000);
    impulse[0][1000] = 1;
    rig.monitorSource(true);
    EXPECT_EQ(onset(rig.render(impulse, 128)[0]), 1000 + rig.unit().latency());
  }
}

TEST(Latency, OfTheSourceIsTheSameAfterEveryChangeOfSetting) {
  Rig rig;
  rig.monitorSource(true);
  const Signal source = music(2, 60000, 44100);
  float next = 0;
  const Signal output = rig.renderInBlocks(source, [&](std::size_t) -> std::size_t {
    rig.setSetting(std::fmod(next, 3.0F), std::fmod(next, 2.0F), 10);
    next += 1;
    return 700;
  });
  const std::size_t latency = rig.unit().latency();
  for (std::size_t channel = 0; channel < 2; ++channel) {
    for (std::size_t i = latency + 500; i < output[channel].size(); ++i) {
      ASSERT_EQ(output[channel][i], source[channel][i - latency]) << i;
    }
  }
}

}  // namespace

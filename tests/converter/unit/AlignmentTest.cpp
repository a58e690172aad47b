#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <string>
#include <tuple>

#include "Rig.h"

namespace {

/// Remaining delay between source and encoded signal below a tenth of the band, in samples, by
/// format: band replication and parametric stereo have fractional delays that vary with frequency.
constexpr double kDelays[] = {0, -0.21, -0.5};

using Case = std::tuple<float, double, UInt32>;

class Alignment : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    const auto [format, sampleRate, channels] = GetParam();
    if (format > velk::kFormat_AAC && !converter::hasHighEfficiencyEncoder()) {
      GTEST_SKIP() << "this build encodes LC only";
    }
  }
};

std::string nameOf(const testing::TestParamInfo<Case>& info) {
  const auto [format, sampleRate, channels] = info.param;
  const char* names[] = {"Lc", "He", "HeV2"};
  return names[static_cast<int>(format)] + std::to_string(static_cast<int>(sampleRate)) +
         (channels == 1 ? "Mono" : "Stereo");
}

TEST_P(Alignment, PutsTheEncodedSignalOnTheSourceToTheSample) {
  const auto [format, sampleRate, channels] = GetParam();
  Rig rig({.sampleRate = sampleRate, .channels = channels, .maximumFrames = 1024});
  rig.setSetting(format, velk::kStrategy_ABR, format == velk::kFormat_HEv2 ? 6.0F : 10.0F);
  const auto frames = static_cast<std::size_t>(sampleRate);
  // Above 96 kHz the codec runs at half the rate.
  const double ratio = sampleRate > 96000 ? 2 : 1;
  const Signal source = smoothNoise(channels, frames, sampleRate, sampleRate / ratio / 20);
  const Signal encoded = rig.renderAligned(source);
  for (std::size_t channel = 0; channel < channels; ++channel) {
    EXPECT_NEAR(delayBetween(source[channel], encoded[channel], 8192, frames - 8192),
                ratio * kDelays[static_cast<int>(format)], 0.05 * ratio);
    EXPECT_LT(residual(source[channel], encoded[channel], 8192, frames - 8192),
              converter::hasHighEfficiencyEncoder() ? -20 : -15);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryFormat, Alignment,
                         testing::Combine(testing::Values(0.0F, 1.0F),
                                          testing::Values(32000.0, 44100.0, 48000.0, 88200.0,
                                                          96000.0, 176400.0, 192000.0),
                                          testing::Values(1U, 2U)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(ParametricStereo, Alignment,
                         testing::Combine(testing::Values(2.0F),
                                          testing::Values(32000.0, 44100.0, 48000.0, 88200.0,
                                                          96000.0, 176400.0, 192000.0),
                                          testing::Values(2U)),
                         nameOf);

TEST(Alignment, HoldsThroughEveryChangeOfFormat) {
  if (!converter::hasHighEfficiencyEncoder()) GTEST_SKIP() << "this build encodes LC only";
  Rig rig;
  const std::size_t frames = std::size_t{5} * 44100;
  const Signal source = smoothNoise(2, frames, 44100, 2200);
  std::size_t changes = 0;
  const float formats[] = {0, 1, 2, 0, 2, 1};
  Signal longer = source;
  for (auto& samples : longer) samples.resize(frames + rig.unit().latency());
  Signal encoded = rig.renderInBlocks(longer, [&](std::size_t at) -> std::size_t {
    if (at >= changes * 36000 && changes < 6) rig.setSetting(formats[changes++], 0, 9);
    return 500;
  });
  encoded = part(encoded, rig.unit().latency(), encoded[0].size());
  for (std::size_t begin = 10000; begin + 36000 < frames; begin += 36000) {
    EXPECT_LT(std::abs(delayBetween(source[0], encoded[0], begin, begin + 24000)), 0.55) << begin;
  }
}

class Difference : public testing::Test {
 protected:
  /// Residual of the source in AAC at 320 kbit/s, dB.
  static double differenceOf(const Signal& source) {
    Rig rig;
    rig.setSetting(velk::kFormat_AAC, velk::kStrategy_ABR, 16);
    const Signal encoded = rig.renderAligned(source);
    const std::size_t end = source[0].size() - 8192;
    return std::max(residual(source[0], encoded[0], 8192, end),
                    residual(source[1], encoded[1], 8192, end));
  }
};

TEST_F(Difference, IsSmallForTwoHundredSinesAtOnceAtTheHighestRate) {
  Signal source = sines(2, 88200, 44100, 200, 12000);
  source[1] = source[0];
  EXPECT_LE(differenceOf(source), converter::hasHighEfficiencyEncoder() ? -33 : -25);
}

TEST_F(Difference, IsSmallForSingleSinesAtTheHighestRate) {
  for (const double frequency : {60.0, 440.0, 997.0, 3150.0, 6300.0, 9000.0, 11900.0}) {
    Signal source = silence(2, 44100);
    for (std::size_t i = 0; i < source[0].size(); ++i) {
      const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(i) / 44100;
      source[0][i] = static_cast<float>(0.5 * std::sin(phase));
      source[1][i] = static_cast<float>(0.4 * std::cos(phase));
    }
    EXPECT_LE(differenceOf(source), -33) << frequency;
  }
}

}  // namespace

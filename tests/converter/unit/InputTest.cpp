#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "Rig.h"

namespace {

constexpr std::size_t kFrames = 50000;

struct Hostile {
  const char* name;
  float (*sample)(std::size_t);
};

void PrintTo(const Hostile& input, std::ostream* out) {
  *out << input.name;
}

constexpr Hostile kInputs[] = {
    {"Silence", [](std::size_t) { return 0.0F; }},
    {"NegativeZero", [](std::size_t) { return -0.0F; }},
    {"NaN", [](std::size_t) { return std::numeric_limits<float>::quiet_NaN(); }},
    {"Infinity", [](std::size_t i) { return (i % 2 == 0 ? 1.0F : -1.0F) / 0.0F; }},
    {"Denormals", [](std::size_t i) { return (i % 3 == 0 ? 1e-40F : -1e-42F); }},
    {"Largest", [](std::size_t i) { return (i % 5 == 0 ? -1.0F : 1.0F) * 3.4e38F; }},
    {"Direct", [](std::size_t) { return 0.9F; }},
    {"Square", [](std::size_t i) { return i / 50 % 2 == 0 ? 1.0F : -1.0F; }},
    {"Alternating", [](std::size_t i) { return i % 2 == 0 ? 1.0F : -1.0F; }},
    {"Impulses", [](std::size_t i) { return i % 3001 == 0 ? 1.0F : 0.0F; }},
    {"MixedWithNaN",
     [](std::size_t i) {
       return i % 997 == 0 ? std::numeric_limits<float>::quiet_NaN()
                           : 0.5F * std::sin(0.05F * static_cast<float>(i % 4000));
     }},
};

class Input : public testing::TestWithParam<Hostile> {};

TEST_P(Input, GivesFiniteEncodedSoundAndLeavesTheUnitInOrder) {
  for (const SInt32 preset : {0, 2}) {
    Rig rig;
    rig.setPreset(preset);
    Signal input = silence(2, kFrames);
    for (std::size_t i = 0; i < kFrames; ++i) input[0][i] = input[1][i] = GetParam().sample(i);
    const Signal output = rig.render(input);
    for (const auto& samples : output) {
      for (const float sample : samples) {
        ASSERT_TRUE(std::isfinite(sample));
        ASSERT_LT(std::fabs(sample), 4);
      }
    }
    for (const auto& record : rig.property(velk::kConverterProperty_PeakStats)) {
      EXPECT_TRUE(std::isfinite(record.mSamplePeak));
      EXPECT_TRUE(std::isfinite(record.mInterSamplePeak));
    }
    const Signal source = music(2, kFrames, 44100);
    // Once all of it has left the unit, it leaves no trace in the readings.
    rig.render(silence(2, rig.unit().latency() + 1024));
    rig.setProperty(velk::kConverterProperty_ResetPeakStats, 1);
    const Signal encoded = rig.renderAligned(source);
    EXPECT_LT(residual(source[0], encoded[0], 15000, kFrames - 4096), -8);
    const auto after = rig.property(velk::kConverterProperty_PeakStats);
    const auto peakOf = [](const std::vector<float>& samples) {
      float peak = 0;
      for (const float sample : samples) peak = std::max(peak, std::fabs(sample));
      return 20 * std::log10(peak);
    };
    EXPECT_NEAR(after[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, peakOf(source[0]), 1e-3);
    EXPECT_NEAR(after[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, peakOf(source[0]), 2);
    EXPECT_EQ(after[velk::kPeakStatsSlot_SourceLeft].mSampleClipCount, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, Input, testing::ValuesIn(kInputs),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(NaN, IsEncodedAsSilence) {
  Rig rig;
  Signal input = silence(2, kFrames);
  for (auto& samples : input) std::ranges::fill(samples, std::numeric_limits<float>::quiet_NaN());
  const Signal output = rig.render(input);
  EXPECT_LT(rms(output[0], 0, kFrames), 1e-5);
}

TEST(Silence, StaysSilence) {
  Rig rig;
  const Signal output = rig.render(silence(2, kFrames));
  EXPECT_LT(rms(output[0], 0, kFrames), 1e-5);
}

}  // namespace

#include <ebur128.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "Rig.h"
#include "programs/demo_mix/DemoMix.h"

namespace {

/// One channel's readings by independent means.
struct Plain {
  double samplePeak = 0;
  double truePeak = 0;
  std::int64_t clips = 0;
};

Plain plainReadings(const std::vector<float>& samples, double sampleRate) {
  Plain plain;
  for (const float sample : samples) {
    plain.samplePeak = std::max(plain.samplePeak, std::fabs(double{sample}));
    plain.clips += std::fabs(sample) > 1.0F ? 1 : 0;
  }
  ebur128_state* state =
      ebur128_init(1, static_cast<unsigned long>(sampleRate), EBUR128_MODE_TRUE_PEAK);
  if (state == nullptr) throw std::runtime_error("libebur128 cannot be opened");
  ebur128_add_frames_float(state, samples.data(), samples.size());
  ebur128_true_peak(state, 0, &plain.truePeak);
  ebur128_destroy(&state);
  return plain;
}

double decibels(double magnitude) {
  return 20 * std::log10(magnitude);
}

void expectReadings(const velk::TruePeakStats& read, const std::vector<float>& samples,
                    double sampleRate) {
  const Plain plain = plainReadings(samples, sampleRate);
  EXPECT_EQ(read.mSampleClipCount, plain.clips);
  EXPECT_NEAR(read.mSamplePeak, decibels(plain.samplePeak), 1e-4);
  EXPECT_NEAR(read.mInterSamplePeak, decibels(plain.truePeak), 0.2);
  EXPECT_GE(read.mInterSamplePeak, read.mSamplePeak);
  EXPECT_GE(read.mInterSampleClipCount, read.mSampleClipCount);
}

struct Case {
  const char* name;
  double sampleRate;
  SInt32 preset;
  float drive;
};

void PrintTo(const Case& each, std::ostream* out) {
  *out << each.name;
}

class UnitReadings : public testing::TestWithParam<Case> {
 protected:
  /// Plays the music through a unit and compares all eight readings with the independent ones.
  static void play(Signal source, double sampleRate, SInt32 preset) {
    // The last intervals are metered only once more samples follow.
    for (auto& samples : source) samples.resize(samples.size() + 256);
    Rig rig({.sampleRate = sampleRate, .channels = 2, .maximumFrames = 1024});
    rig.setPreset(preset);
    const Signal encoded = rig.renderAligned(source);
    const auto read = rig.property(velk::kConverterProperty_PeakStats);
    expectReadings(read[velk::kPeakStatsSlot_SourceLeft], source[0], sampleRate);
    expectReadings(read[velk::kPeakStatsSlot_SourceRight], source[1], sampleRate);
    expectReadings(read[velk::kPeakStatsSlot_EncodedLeft], encoded[0], sampleRate);
    expectReadings(read[velk::kPeakStatsSlot_EncodedRight], encoded[1], sampleRate);
  }
};

TEST_P(UnitReadings, OfGeneratedMusicAreThoseOfLibebur128AndOfAPlainCount) {
  const Case& each = GetParam();
  Signal source = music(2, static_cast<std::size_t>(6 * each.sampleRate), each.sampleRate);
  for (auto& samples : source) {
    for (float& sample : samples) sample = std::tanh(each.drive * sample) * 1.02F;
  }
  play(std::move(source), each.sampleRate, each.preset);
}

constexpr Case kCases[] = {
    {"Lc128At44100", 44100, 1, 3},      {"Lc256At48000", 48000, 0, 6},
    {"He64At44100", 44100, 2, 3},       {"He320At48000", 48000, 3, 6},
    {"Lc256At96000", 96000, 0, 3},      {"Lc128At32000", 32000, 1, 3},
    {"QuietLc256At44100", 44100, 0, 1},
};

INSTANTIATE_TEST_SUITE_P(Of, UnitReadings, testing::ValuesIn(kCases),
                         [](const auto& test) { return std::string(test.param.name); });

class UnitReadingsOfTheDemoMix : public UnitReadings {};

TEST_P(UnitReadingsOfTheDemoMix, AreThoseOfLibebur128AndOfAPlainCount) {
  const auto mix = host::demo_mix::demoMix(24);
  Signal source;
  for (const auto& samples : {mix.left, mix.right}) {
    source.emplace_back(samples.begin(), samples.end());
  }
  play(std::move(source), GetParam().sampleRate, GetParam().preset);
}

INSTANTIATE_TEST_SUITE_P(In, UnitReadingsOfTheDemoMix,
                         testing::Values(Case{"Plus", 44100, 0, 1}, Case{"Lc128", 44100, 1, 1},
                                         Case{"Streaming", 44100, 2, 1},
                                         Case{"HighQuality", 44100, 3, 1}),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace

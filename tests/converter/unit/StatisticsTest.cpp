#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Rig.h"

namespace {

using velk::PeakStatistics;

PeakStatistics statistics(Rig& rig) {
  return rig.property(velk::kConverterProperty_PeakStats);
}

void resetStatistics(Rig& rig) {
  rig.setProperty(velk::kConverterProperty_ResetPeakStats, 1);
}

Signal sine(std::size_t frames, float left, float right) {
  Signal signal = silence(2, frames);
  for (std::size_t i = 0; i < frames; ++i) {
    // Fades in over 50 ms, so that only the sine itself is metered.
    const double ramp = std::min(1.0, static_cast<double>(i) / 2205);
    const double value =
        ramp * std::sin(2 * std::numbers::pi * 1000 * static_cast<double>(i) / 44100);
    signal[0][i] = static_cast<float>(left * value);
    signal[1][i] = static_cast<float>(right * value);
  }
  return signal;
}

TEST(Statistics, MeterSourceAndEncodedSignalWhateverIsHeard) {
  for (const bool monitorSource : {false, true}) {
    Rig rig;
    rig.monitorSource(monitorSource);
    rig.render(sine(60000, 0.5F, 0.25F));
    const auto read = statistics(rig);
    EXPECT_NEAR(read[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, -6.02, 0.01);
    EXPECT_NEAR(read[velk::kPeakStatsSlot_SourceRight].mSamplePeak, -12.04, 0.01);
    EXPECT_NEAR(read[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, -6.02, 0.5);
    EXPECT_NEAR(read[velk::kPeakStatsSlot_EncodedRight].mSamplePeak, -12.04, 0.5);
    EXPECT_GE(read[0].mInterSamplePeak, read[0].mSamplePeak);
    EXPECT_EQ(read[0].mSampleClipCount, 0);
  }
}

TEST(Statistics, CountTheSourceBeforeTheConversionClipsIt) {
  Rig rig;
  rig.render(sine(60000, 2, 0.5F));
  const auto read = statistics(rig);
  EXPECT_NEAR(read[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, 6.02, 0.01);
  // A sine of twice full scale exceeds it for two thirds of the time.
  const double heard = 60000.0 - rig.unit().latency() - 2205;
  EXPECT_NEAR(static_cast<double>(read[velk::kPeakStatsSlot_SourceLeft].mSampleClipCount),
              heard * 2 / 3, heard / 50 + 700);
  EXPECT_EQ(read[velk::kPeakStatsSlot_SourceRight].mSampleClipCount, 0);
}

TEST(Statistics, ShowTheOversThatEncodingMakesOfAHotSource) {
  Rig rig;
  rig.setSetting(0, 0, 10);
  Signal hot = music(2, 100000, 44100);
  for (auto& samples : hot) {
    for (float& sample : samples) sample = std::tanh(sample * 12) * 0.999F;
  }
  rig.render(hot);
  const auto read = statistics(rig);
  EXPECT_EQ(read[velk::kPeakStatsSlot_SourceLeft].mSampleClipCount, 0);
  EXPECT_LT(read[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, 0);
  EXPECT_GT(read[velk::kPeakStatsSlot_EncodedLeft].mSampleClipCount, 100);
  EXPECT_GT(read[velk::kPeakStatsSlot_EncodedRight].mSampleClipCount, 100);
  EXPECT_GT(read[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, 0.3);
}

TEST(Statistics, AreClearedAtOnce) {
  Rig rig;
  rig.render(sine(60000, 2, 2));
  ASSERT_GT(statistics(rig)[0].mSampleClipCount, 0);
  resetStatistics(rig);
  for (const auto& record : statistics(rig)) {
    EXPECT_EQ(record.mSampleClipCount, 0);
    EXPECT_EQ(record.mInterSampleClipCount, 0);
    EXPECT_LE(record.mSamplePeak, -60);
    EXPECT_LE(record.mInterSamplePeak, -60);
  }
}

TEST(Statistics, AreCutWhereBothSignalsComeOut) {
  Rig rig;
  const std::size_t latency = rig.unit().latency();
  Signal input = sine(120000, 0.9F, 0.9F);
  for (auto& samples : input) {
    for (std::size_t i = 40000; i < 80000; ++i) samples[i] *= 0.1F;
  }
  // At the reset the quiet passage is leaving the unit; before it has left, the next loud one
  // enters.
  const std::size_t reset = 42000 + latency;
  const std::size_t end = 78000 + latency;
  ASSERT_GT(end, 90000U);
  rig.render(part(input, 0, reset));
  EXPECT_GT(statistics(rig)[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, -2);
  resetStatistics(rig);
  rig.render(part(input, reset, end));
  const auto read = statistics(rig);
  EXPECT_NEAR(read[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, -20.9, 0.1);
  EXPECT_NEAR(read[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, -20.9, 1);
  rig.render(part(input, end, 120000));
  EXPECT_GT(statistics(rig)[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, -2);
  EXPECT_GT(statistics(rig)[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, -2);
}

TEST(Statistics, OfMonoUseTheLeftSlots) {
  Rig rig({.sampleRate = 44100, .channels = 1, .maximumFrames = 1024});
  rig.render({sine(60000, 0.5F, 0)[0]});
  const auto read = statistics(rig);
  EXPECT_NEAR(read[velk::kPeakStatsSlot_SourceLeft].mSamplePeak, -6.02, 0.01);
  EXPECT_NEAR(read[velk::kPeakStatsSlot_EncodedLeft].mSamplePeak, -6.02, 0.5);
  EXPECT_LE(read[velk::kPeakStatsSlot_SourceRight].mSamplePeak, -60);
  EXPECT_LE(read[velk::kPeakStatsSlot_EncodedRight].mSamplePeak, -60);
}

}  // namespace

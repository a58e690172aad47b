#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "EveryPoint.h"
#include "MeterSignals.h"
#include "converter/meters/InterSampleAnalysis.h"

using converter::analyseIntervals;
using converter::InterSampleReadings;
using meter_signals::Samples;

namespace {

constexpr std::size_t kRoom = 64;

/// The readings of all intervals of `samples`, in runs of random length.
InterSampleReadings inRandomRuns(const Samples& samples, unsigned seed) {
  Samples padded(kRoom);
  padded.insert(padded.end(), samples.begin(), samples.end());
  padded.resize(padded.size() + kRoom);
  std::mt19937 random(seed);
  std::uniform_int_distribution<std::size_t> length(1, converter::kMaximumIntervals);
  InterSampleReadings readings{0, 0};
  for (std::size_t at = 0; at < samples.size();) {
    const std::size_t count = std::min(length(random), samples.size() - at);
    analyseIntervals(padded.data() + kRoom + at, count, readings);
    at += count;
  }
  return readings;
}

void expectSameAsEveryPoint(const Samples& samples, const std::string& what) {
  const EveryPointReadings all = everyPoint(samples, 0, samples.size());
  for (unsigned seed = 1; seed <= 3; ++seed) {
    const InterSampleReadings read = inRandomRuns(samples, seed);
    EXPECT_EQ(read.peak, all.peak) << what;
    EXPECT_EQ(read.overs, all.overs) << what;
  }
}

}  // namespace

TEST(InterSampleAnalysis, GivesTheReadingsOfEveryPointOnHotMusic) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    for (float drive : {0.5F, 1.0F, 3.0F, 20.0F}) {
      expectSameAsEveryPoint(meter_signals::hotMix(30000, drive, seed), "hot mix");
      expectSameAsEveryPoint(meter_signals::clippedMix(30000, drive, seed), "clipped mix");
    }
  }
}

TEST(InterSampleAnalysis, GivesTheReadingsOfEveryPointOnNoiseOfAnyLevel) {
  for (float peak : {0.1F, 0.4F, 0.55F, 0.7F, 0.9F, 1.0F, 1.3F, 100.0F, 1e20F}) {
    expectSameAsEveryPoint(meter_signals::whiteNoise(20000, peak, 7), "white noise");
  }
  for (double highest : {0.05, 0.2, 0.45}) {
    Samples samples = meter_signals::noiseBursts(highest, 20000, 5);
    for (float& sample : samples) sample *= 1.2F;
    expectSameAsEveryPoint(samples, "noise bursts");
  }
}

TEST(InterSampleAnalysis, GivesTheReadingsOfEveryPointWhereFullScaleIsJustReached) {
  for (double frequency : {0.01, 0.1234, 0.2, 0.25, 1.0 / 3, 0.4, 0.4499, 0.49}) {
    for (double degrees : {0.0, 13.0, 45.0, 77.0}) {
      for (double amplitude : {0.9995, 0.99999, 1.0, 1.00001, 1.0005}) {
        expectSameAsEveryPoint(meter_signals::sine(frequency, degrees, amplitude, 2000), "sine");
      }
    }
  }
}

TEST(InterSampleAnalysis, GivesTheReadingsOfEveryPointOnSignsThatAddUpInTheFilter) {
  // Full-scale samples with the signs of the longest filter's weights: the worst case.
  Samples samples(200);
  for (std::size_t i = 0; i < 20; ++i) {
    const float sign = i % 2 == 0 ? 1.0F : -1.0F;
    samples[100 - i] = sign;
    samples[101 + i] = sign;
  }
  expectSameAsEveryPoint(samples, "worst signs");
  EXPECT_GT(everyPoint(samples, 0, samples.size()).peak, 2.6F);
}

TEST(InterSampleAnalysis, LooksNoFurtherThanItSays) {
  Samples samples = meter_signals::whiteNoise(400, 1.0F, 3);
  constexpr std::size_t count = 77;
  const float* const at = samples.data() + 100;
  InterSampleReadings before{0, 0};
  analyseIntervals(at, count, before);
  for (std::size_t i = 0; i < 100 - converter::kSamplesBefore; ++i) samples[i] = 50;
  for (std::size_t i = 100 + count + converter::kSamplesAfter; i < samples.size(); ++i) {
    samples[i] = 50;
  }
  // The interval after the last one does depend on the sample changed above.
  InterSampleReadings after{0, 0};
  analyseIntervals(at, count, after);
  EXPECT_EQ(after.peak, before.peak);
  EXPECT_EQ(after.overs, before.overs);
}

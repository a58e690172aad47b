#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "EveryPoint.h"
#include "MeterSignals.h"
#include "SameStatistics.h"
#include "converter/meters/TruePeakMeter.h"

using converter::kMeterFloorDecibels;
using converter::TruePeakMeter;
using meter_signals::Samples;

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

void feed(TruePeakMeter& meter, const Samples& samples) {
  meter.process(samples.data(), samples.size());
}

void expectSame(const TruePeakMeter& meter, const TruePeakMeter& other) {
  EXPECT_EQ(meter.samplePeak(), other.samplePeak());
  EXPECT_EQ(meter.interSamplePeak(), other.interSamplePeak());
  EXPECT_EQ(meter.sampleClipCount(), other.sampleClipCount());
  EXPECT_EQ(meter.interSampleOverCount(), other.interSampleOverCount());
  EXPECT_EQ(meter.statistics().mSamplePeak, other.statistics().mSamplePeak);
  EXPECT_EQ(meter.statistics().mInterSamplePeak, other.statistics().mInterSamplePeak);
}

void expectFloor(const TruePeakMeter& meter) {
  EXPECT_EQ(meter.statistics().mSamplePeak, kMeterFloorDecibels);
  EXPECT_EQ(meter.statistics().mInterSamplePeak, kMeterFloorDecibels);
  EXPECT_EQ(meter.statistics().mSampleClipCount, 0);
  EXPECT_EQ(meter.statistics().mInterSampleClipCount, 0);
}

}  // namespace

TEST(TruePeakMeter, ReadsTheFloorBeforeAnySampleAndOnSilence) {
  TruePeakMeter meter;
  expectFloor(meter);
  feed(meter, Samples(10000, 0.0F));
  expectFloor(meter);
  meter.process(nullptr, 0);
  expectFloor(meter);
}

TEST(TruePeakMeter, ReadsTheSamplePeakOfEitherSignAtOnce) {
  TruePeakMeter meter;
  feed(meter, {0.25F, -0.5F, 0.1F});
  EXPECT_EQ(meter.samplePeak(), 0.5F);
  EXPECT_NEAR(meter.statistics().mSamplePeak, -6.0206F, 1e-4F);
  EXPECT_GE(meter.interSamplePeak(), 0.5F);
}

TEST(TruePeakMeter, CountsEachSampleAboveFullScaleAndNoneAtIt) {
  const float above = std::nextafter(1.0F, 2.0F);
  TruePeakMeter meter;
  feed(meter, {1.0F, -1.0F, above, -above, 0.5F, 3.0F, 1.0F});
  EXPECT_EQ(meter.sampleClipCount(), 3);
}

TEST(TruePeakMeter, CountsSampleClipsExactlyOnHotNoise) {
  const Samples samples = meter_signals::whiteNoise(100003, 1.5F, 11);
  const auto expected = std::count_if(samples.begin(), samples.end(),
                                      [](float sample) { return std::fabs(sample) > 1.0F; });
  TruePeakMeter meter;
  feed(meter, samples);
  EXPECT_EQ(meter.sampleClipCount(), expected);
}

TEST(TruePeakMeter, CountsOneOverForEachCrestBetweenTwoSamples) {
  // Pairs of samples of magnitude 0.997: the crest lies between the two of a pair and nowhere else.
  constexpr std::size_t frames = 4000;
  TruePeakMeter meter;
  feed(meter, meter_signals::sine(0.25, 45, 1.41, frames));
  meter.reset();
  feed(meter, meter_signals::sine(0.25, 45, 1.41, frames));
  EXPECT_EQ(meter.sampleClipCount(), 0);
  EXPECT_NEAR(meter.statistics().mInterSamplePeak, 2.984F, 0.02F);
  EXPECT_EQ(meter.interSampleOverCount(),
            static_cast<std::int64_t>((frames - TruePeakMeter::kDelay + 1) / 2));
}

TEST(TruePeakMeter, MetersAnIntervalWhenItsDelayHasPassed) {
  TruePeakMeter meter;
  feed(meter, {2.0F});
  feed(meter, Samples(TruePeakMeter::kDelay - 1, 0.0F));
  EXPECT_EQ(meter.interSampleOverCount(), 0);
  feed(meter, {0.0F});
  EXPECT_EQ(meter.interSampleOverCount(), 1);
}

TEST(TruePeakMeter, ReadsAnImpulseAsItsOwnHeight) {
  TruePeakMeter meter;
  Samples samples(200);
  samples[100] = 0.75F;
  feed(meter, samples);
  EXPECT_EQ(meter.samplePeak(), 0.75F);
  EXPECT_EQ(meter.interSamplePeak(), 0.75F);
}

TEST(TruePeakMeter, ReadsConstantFullScaleWithoutOvers) {
  // Only the onset overshoots, and it is over by the time of the reset.
  for (float level : {1.0F, -1.0F, 0.999999F}) {
    TruePeakMeter meter;
    feed(meter, Samples(1000, level));
    EXPECT_GT(meter.interSamplePeak(), 1.0F);
    meter.reset();
    feed(meter, Samples(100000, level));
    EXPECT_EQ(meter.samplePeak(), std::fabs(level));
    EXPECT_EQ(meter.interSamplePeak(), std::fabs(level));
    EXPECT_LE(meter.statistics().mInterSamplePeak, 0.0F);
    EXPECT_EQ(meter.interSampleOverCount(), 0);
    EXPECT_EQ(meter.sampleClipCount(), 0);
  }
}

TEST(TruePeakMeter, FindsTheOvershootOfAFullScaleSquareWave) {
  Samples samples;
  for (std::size_t n = 0; n < 8000; ++n) samples.push_back(n / 50 % 2 == 0 ? 1.0F : -1.0F);
  TruePeakMeter meter;
  feed(meter, samples);
  EXPECT_EQ(meter.sampleClipCount(), 0);
  EXPECT_EQ(meter.samplePeak(), 1.0F);
  const double ideal = meter_signals::idealPeak(samples, 1000, 1100);
  EXPECT_GT(ideal, 1.2);
  EXPECT_NEAR(meter.statistics().mInterSamplePeak, 20 * std::log10(ideal), 0.2);
  EXPECT_GT(meter.interSampleOverCount(), 8000 / 50);
}

TEST(TruePeakMeter, NeverReadsTheInterSamplePeakBelowTheSamplePeak) {
  const Samples samples = meter_signals::hotMix(20000, 5.0F, 2);
  TruePeakMeter meter;
  for (float sample : samples) {
    meter.process(&sample, 1);
    ASSERT_GE(meter.interSamplePeak(), meter.samplePeak());
    ASSERT_GE(meter.statistics().mInterSamplePeak, meter.statistics().mSamplePeak);
  }
}

TEST(TruePeakMeter, GivesTheSameBitsForEveryBlockSize) {
  const Samples samples = meter_signals::hotMix(40000, 6.0F, 3);
  TruePeakMeter whole;
  feed(whole, samples);
  ASSERT_GT(whole.interSampleOverCount(), 100);
  for (std::size_t size = 1; size <= 8192; size = size < 70 ? size + 1 : size * 3 / 2) {
    TruePeakMeter meter;
    for (std::size_t at = 0; at < samples.size(); at += size) {
      meter.process(samples.data() + at, std::min(size, samples.size() - at));
    }
    expectSame(meter, whole);
  }
}

TEST(TruePeakMeter, GivesTheSameBitsForRandomBlocksAndMatchesEveryPoint) {
  std::mt19937 random(5);
  for (unsigned seed = 1; seed <= 5; ++seed) {
    const Samples samples = meter_signals::clippedMix(30000, 2.0F + static_cast<float>(seed), seed);
    const EveryPointReadings all = everyPoint(samples, 0, samples.size() - TruePeakMeter::kDelay);
    TruePeakMeter meter;
    for (std::size_t at = 0; at < samples.size();) {
      const std::size_t longest = std::size_t{1} << (random() % 14);
      const std::size_t size = std::min(random() % longest + 1, samples.size() - at);
      meter.process(samples.data() + at, size);
      at += size;
    }
    EXPECT_EQ(meter.interSampleOverCount(), all.overs);
    EXPECT_EQ(meter.interSamplePeak(), std::max(all.peak, meter.samplePeak()));
  }
}

TEST(TruePeakMeter, CountsAfterAResetExactlyTheIntervalsOfSamplesAfterIt) {
  const Samples samples = meter_signals::clippedMix(20000, 6.0F, 4);
  std::mt19937 random(9);
  TruePeakMeter meter;
  std::size_t since = 0;
  std::size_t at = 0;
  while (at < samples.size()) {
    const std::size_t size = std::min<std::size_t>(random() % 900 + 1, samples.size() - at);
    meter.process(samples.data() + at, size);
    at += size;
    const std::size_t metered = at > TruePeakMeter::kDelay ? at - TruePeakMeter::kDelay : 0;
    const EveryPointReadings all = everyPoint(samples, since, std::max(since, metered));
    const Samples heard(samples.begin() + static_cast<std::ptrdiff_t>(since),
                        samples.begin() + static_cast<std::ptrdiff_t>(at));
    ASSERT_EQ(meter.interSampleOverCount(), all.overs);
    ASSERT_EQ(meter.sampleClipCount(), std::count_if(heard.begin(), heard.end(), [](float sample) {
                return std::fabs(sample) > 1.0F;
              }));
    ASSERT_EQ(meter.interSamplePeak(), std::max(all.peak, meter.samplePeak()));
    if (random() % 2 == 0) {
      meter.reset();
      expectFloor(meter);
      since = at;
    }
  }
}

TEST(TruePeakMeter, LosesNoOverThatComesRightAfterAReset) {
  for (std::size_t place = 0; place < 60; ++place) {
    TruePeakMeter meter;
    feed(meter, meter_signals::whiteNoise(500, 0.1F, 1));
    meter.reset();
    Samples samples(200);
    samples[place] = 0.9F;
    samples[place + 1] = 0.9F;
    feed(meter, samples);
    EXPECT_EQ(meter.interSampleOverCount(), 1) << place;
    EXPECT_GT(meter.interSamplePeak(), 1.1F) << place;
  }
}

TEST(TruePeakMeter, ShowsNothingFromBeforeAResetWhenSilenceFollows) {
  TruePeakMeter meter;
  Samples samples(500);
  samples[470] = 5.0F;
  feed(meter, samples);
  meter.reset();
  feed(meter, Samples(500, 0.0F));
  EXPECT_EQ(meter.sampleClipCount(), 0);
  EXPECT_EQ(meter.interSampleOverCount(), 0);
  EXPECT_EQ(meter.statistics().mSamplePeak, kMeterFloorDecibels);
}

TEST(TruePeakMeter, MetersTheLastIntervalsWhenTheSignalEnds) {
  const Samples samples = meter_signals::clippedMix(3001, 6.0F, 8);
  const EveryPointReadings all = everyPoint(samples, 0, samples.size());
  TruePeakMeter meter;
  feed(meter, samples);
  meter.finish();
  EXPECT_EQ(meter.interSampleOverCount(), all.overs);
  EXPECT_EQ(meter.interSamplePeak(), std::max(all.peak, meter.samplePeak()));
}

TEST(TruePeakMeter, StartsANewSignalFromSilenceAndKeepsTheReadings) {
  const Samples first = meter_signals::clippedMix(2000, 6.0F, 1);
  const Samples second = meter_signals::clippedMix(2000, 6.0F, 2);
  TruePeakMeter meter;
  feed(meter, first);
  const std::int64_t before = meter.interSampleOverCount();
  ASSERT_GT(before, 0);
  meter.abandon();
  EXPECT_EQ(meter.interSampleOverCount(), before);
  feed(meter, second);
  TruePeakMeter alone;
  feed(alone, second);
  ASSERT_GT(alone.interSampleOverCount(), 0);
  EXPECT_EQ(meter.interSampleOverCount(), before + alone.interSampleOverCount());
}

TEST(TruePeakMeter, MakesNoOverOfACutInALoudSignal) {
  TruePeakMeter meter;
  feed(meter, Samples(300, 0.99F));
  meter.reset();
  feed(meter, Samples(300, 0.99F));
  meter.abandon();
  feed(meter, Samples(300, 0.0F));
  EXPECT_EQ(meter.interSampleOverCount(), 0);
  EXPECT_NEAR(meter.interSamplePeak(), 0.99F, 1e-4);
}

TEST(TruePeakMeter, MetersWhatFollowsAPassAsInTheMiddleOfTheSignal) {
  const Samples signal = meter_signals::clippedMix(3000, 6.0F, 4);
  for (const std::size_t passed : {0U, 1U, 11U, 500U, 1999U}) {
    const Samples before(signal.begin(), signal.begin() + static_cast<std::ptrdiff_t>(passed));
    const Samples after(signal.begin() + static_cast<std::ptrdiff_t>(passed), signal.end());
    TruePeakMeter expected;
    feed(expected, before);
    expected.reset();
    feed(expected, after);
    TruePeakMeter meter;
    meter.pass(before.data(), before.size());
    EXPECT_EQ(meter.statistics().mSamplePeak, kMeterFloorDecibels);
    feed(meter, after);
    EXPECT_TRUE(same(meter.statistics(), expected.statistics())) << passed;
  }
}

TEST(TruePeakMeter, KeepsItsReadingsDuringAPass) {
  TruePeakMeter meter;
  feed(meter, meter_signals::mix(2000, 0.5F, 1));
  const velk::TruePeakStats before = meter.statistics();
  const Samples loud = meter_signals::clippedMix(2000, 6.0F, 2);
  meter.pass(loud.data(), loud.size());
  feed(meter, Samples(2000, 0.0F));
  EXPECT_EQ(meter.sampleClipCount(), 0);
  EXPECT_TRUE(same(meter.statistics(), before));
}

TEST(TruePeakMeter, TakesSamplesThatAreNoSoundAsSilenceForThePeaks) {
  for (float broken : {kNotANumber, -kNotANumber, kInfinity, -kInfinity, 3e38F, -3e38F}) {
    Samples samples = meter_signals::mix(3000, 0.5F, 1);
    Samples mended = samples;
    for (std::size_t at : {0U, 700U, 701U, 1500U, 2999U}) {
      samples[at] = broken;
      mended[at] = 0;
    }
    TruePeakMeter meter;
    TruePeakMeter reference;
    feed(meter, samples);
    feed(reference, mended);
    EXPECT_EQ(meter.samplePeak(), reference.samplePeak());
    EXPECT_EQ(meter.interSamplePeak(), reference.interSamplePeak());
    EXPECT_EQ(meter.interSampleOverCount(), reference.interSampleOverCount());
    EXPECT_EQ(meter.sampleClipCount(), std::isnan(broken) ? 0 : 5);
  }
}

TEST(TruePeakMeter, StaysFiniteOnTheLoudestSamplesAndForgetsThemOnReset) {
  TruePeakMeter meter;
  feed(meter, meter_signals::whiteNoise(2000, 1e30F, 1));
  EXPECT_TRUE(std::isfinite(meter.interSamplePeak()));
  EXPECT_GT(meter.statistics().mInterSamplePeak, 590.0F);
  feed(meter, Samples(100, 0.0F));
  meter.reset();
  feed(meter, meter_signals::sine(0.01, 0, 0.5, 2000));
  EXPECT_NEAR(meter.statistics().mInterSamplePeak, -6.02F, 0.1F);
}

TEST(TruePeakMeter, ComputesNoDenormals) {
  Samples samples(6000);
  for (std::size_t n = 0; n < samples.size(); ++n) {
    const double decay = std::exp(-static_cast<double>(n) / 60);
    samples[n] = static_cast<float>(1e-3 * decay * std::cos(static_cast<double>(n)));
  }
  ASSERT_EQ(std::fpclassify(samples[5600]), FP_SUBNORMAL);
  TruePeakMeter meter;
  std::feclearexcept(FE_ALL_EXCEPT);
  for (std::size_t at = 0; at < samples.size(); at += 100) {
    meter.process(samples.data() + at, 100);
    meter.reset();
  }
  EXPECT_EQ(std::fetestexcept(FE_UNDERFLOW), 0);
  feed(meter, Samples(100, 1e-40F));
  expectFloor(meter);
}

TEST(Decibels, AreAboveZeroExactlyWhenTheMagnitudeIsAboveFullScale) {
  EXPECT_EQ(converter::decibelsOfMagnitude(1.0F), 0.0F);
  EXPECT_GT(converter::decibelsOfMagnitude(std::nextafter(1.0F, 2.0F)), 0.0F);
  EXPECT_LT(converter::decibelsOfMagnitude(std::nextafter(1.0F, 0.0F)), 0.0F);
  EXPECT_EQ(converter::decibelsOfMagnitude(0.0F), kMeterFloorDecibels);
  EXPECT_EQ(converter::decibelsOfMagnitude(1e-9F), kMeterFloorDecibels);
}

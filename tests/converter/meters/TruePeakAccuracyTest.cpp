#include <ebur128.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "MeterSignals.h"
#include "converter/meters/TruePeakMeter.h"

using converter::TruePeakMeter;
using meter_signals::Samples;

namespace {

double decibels(double magnitude) {
  return 20 * std::log10(magnitude);
}

double metered(const Samples& samples) {
  TruePeakMeter meter;
  meter.process(samples.data(), samples.size());
  return meter.statistics().mInterSamplePeak;
}

double meteredByEbur128(const Samples& samples, unsigned long rate) {
  ebur128_state* const state = ebur128_init(1, rate, EBUR128_MODE_TRUE_PEAK);
  EXPECT_EQ(ebur128_add_frames_float(state, samples.data(), samples.size()), EBUR128_SUCCESS);
  double peak = 0;
  EXPECT_EQ(ebur128_true_peak(state, 0, &peak), EBUR128_SUCCESS);
  ebur128_state* toDestroy = state;
  ebur128_destroy(&toDestroy);
  return decibels(peak);
}

/// Keeps the smallest and largest error for the test's report.
struct Errors {
  double lowest = 0;
  double highest = 0;
  void take(double error) {
    lowest = std::min(lowest, error);
    highest = std::max(highest, error);
  }
  void report(const std::string& name) const {
    testing::Test::RecordProperty(name, std::to_string(lowest) + " to " + std::to_string(highest));
    std::printf("%s: %+.4f to %+.4f dB\n", name.c_str(), lowest, highest);
  }
};

class AtRate : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(SampleRates, AtRate, testing::Values(32000, 44100, 48000, 88200, 96000));

}  // namespace

TEST_P(AtRate, ReadsSinesUpToNinetyPercentOfTheBandAtAnyPhase) {
  Errors errors;
  const double rate = GetParam();
  for (double hertz = 50; hertz <= 0.45 * rate; hertz *= 1.037) {
    for (double degrees = 0; degrees < 180; degrees += 22.5) {
      const double error =
          metered(meter_signals::fadedSine(hertz / rate, degrees, 0.7, 4000, 600)) - decibels(0.7);
      errors.take(error);
      ASSERT_LE(error, 0.1) << hertz << " Hz, " << degrees << " degrees";
      ASSERT_GE(error, -0.2) << hertz << " Hz, " << degrees << " degrees";
    }
  }
  errors.report("error of sines");
}

TEST(TruePeakMeter, ReadsSinesWhoseCrestsNeverComeNearASample) {
  Errors errors;
  for (int period = 3; period <= 40; ++period) {
    for (int cycles = 1; cycles <= 0.45 * period; ++cycles) {
      for (double degrees = 0; degrees < 180; degrees += 2.5) {
        const double frequency = static_cast<double>(cycles) / period;
        const double error =
            metered(meter_signals::fadedSine(frequency, degrees, 0.9, 1200, 400)) - decibels(0.9);
        errors.take(error);
        ASSERT_LE(error, 0.1) << cycles << "/" << period << ", " << degrees << " degrees";
        ASSERT_GE(error, -0.2) << cycles << "/" << period << ", " << degrees << " degrees";
      }
    }
  }
  errors.report("error of sines of short period");
}

struct SteadyCase {
  int number;
  double frequency;
  double degrees;
  double amplitude;
  double expected;
};

class EbuTech3341Steady : public testing::TestWithParam<SteadyCase> {};

INSTANTIATE_TEST_SUITE_P(
    Cases15To19, EbuTech3341Steady,
    testing::Values(SteadyCase{15, 1.0 / 4, 0, 0.5, -6}, SteadyCase{16, 1.0 / 4, 45, 0.5, -6},
                    SteadyCase{17, 1.0 / 6, 60, 0.5, -6}, SteadyCase{18, 1.0 / 8, 67.5, 0.5, -6},
                    SteadyCase{19, 1.0 / 4, 45, 1.41, 3}),
    [](const auto& info) { return "Case" + std::to_string(info.param.number); });

TEST_P(EbuTech3341Steady, ReadsTheTruePeakOfTheStandard) {
  const SteadyCase& wanted = GetParam();
  const double read = metered(
      meter_signals::fadedSine(wanted.frequency, wanted.degrees, wanted.amplitude, 48000, 2400));
  std::printf("case %d: %+.4f dBTP\n", wanted.number, read);
  EXPECT_LE(read, wanted.expected + 0.2);
  EXPECT_GE(read, wanted.expected - 0.4);
}

TEST(TruePeakMeter, ReadsEverySteadyPhaseOfTheStandardAtEveryFrequencyOfIt) {
  for (double divisor : {4, 6, 8}) {
    for (double degrees : {0.0, 45.0, 60.0, 67.5}) {
      for (double amplitude : {0.5, 1.41}) {
        const double error =
            metered(meter_signals::fadedSine(1 / divisor, degrees, amplitude, 9600, 1200)) -
            decibels(amplitude);
        EXPECT_LE(error, 0.1) << "fs/" << divisor << ", " << degrees << " degrees";
        EXPECT_GE(error, -0.1) << "fs/" << divisor << ", " << degrees << " degrees";
      }
    }
  }
}

class EbuTech3341SingleCycle : public testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Cases20To23, EbuTech3341SingleCycle, testing::Values(0, 1, 2, 3),
                         [](const auto& info) { return "Case" + std::to_string(20 + info.param); });

TEST_P(EbuTech3341SingleCycle, ReadsTheTruePeakOfTheStandard) {
  const Samples samples = meter_signals::singleCycle(GetParam());
  const double read = metered(samples);
  const double ideal = decibels(meter_signals::idealPeak(samples, 250, samples.size() - 250));
  std::printf("case %zu: %+.4f dBTP, band-limited signal %+.4f\n", 20 + GetParam(), read, ideal);
  EXPECT_LE(read, 0.2);
  EXPECT_GE(read, -0.4);
  EXPECT_NEAR(read, ideal, 0.05);
}

TEST(TruePeakMeter, AgreesWithLibebur128OnNoiseBursts) {
  Errors errors;
  for (unsigned seed = 1; seed <= 6; ++seed) {
    for (double highest : {0.1, 0.2, 0.3, 0.36}) {
      const Samples samples = meter_signals::noiseBursts(highest, 30000, seed);
      for (unsigned long rate : {44100UL, 48000UL}) {
        errors.take(metered(samples) - meteredByEbur128(samples, rate));
      }
    }
  }
  errors.report("difference to libebur128 on noise bursts");
  EXPECT_LE(errors.highest, 0.2);
  EXPECT_GE(errors.lowest, -0.2);
}

TEST(TruePeakMeter, AgreesWithLibebur128OnQuietAndLoudMixes) {
  Errors errors;
  for (unsigned seed = 1; seed <= 4; ++seed) {
    for (float peak : {0.1F, 0.9F}) {
      const Samples samples = meter_signals::mix(48000, peak, seed);
      errors.take(metered(samples) - meteredByEbur128(samples, 48000));
    }
    for (float drive : {1.0F, 1.5F}) {
      const Samples samples = meter_signals::hotMix(48000, drive, seed);
      errors.take(metered(samples) - meteredByEbur128(samples, 48000));
    }
    const Samples samples = meter_signals::clippedMix(48000, 1.5F, seed);
    errors.take(metered(samples) - meteredByEbur128(samples, 48000));
  }
  errors.report("difference to libebur128 on mixes");
  EXPECT_LE(errors.highest, 0.2);
  EXPECT_GE(errors.lowest, -0.2);
}

TEST(TruePeakMeter, ComesCloserThanLibebur128ToTheBandLimitedSignalOfClippedMixes) {
  Errors own;
  Errors other;
  for (unsigned seed = 1; seed <= 4; ++seed) {
    for (float drive : {3.0F, 8.0F}) {
      Samples samples = meter_signals::clippedMix(8000, drive, seed);
      samples.insert(samples.begin(), 200, 0.0F);
      samples.resize(samples.size() + 200);
      const double ideal = decibels(meter_signals::idealPeak(samples, 0, samples.size()));
      own.take(metered(samples) - ideal);
      other.take(meteredByEbur128(samples, 48000) - ideal);
    }
  }
  own.report("error on clipped mixes");
  other.report("error of libebur128 on clipped mixes");
  EXPECT_LE(std::max(own.highest, -own.lowest), std::max(other.highest, -other.lowest));
}

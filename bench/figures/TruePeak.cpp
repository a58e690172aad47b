#include <cmath>

#include "Figure.h"
#include "MeterSignals.h"
#include "converter/meters/TruePeakMeter.h"
#include "true_peak_speed.h"

namespace figures {
namespace {

constexpr std::size_t kFrames = 480000;
constexpr int kRounds = 15;
constexpr double kSpeedGoal = 3;
constexpr double kHighestError = 0.1;
constexpr double kLowestError = -0.2;
/// Percent of a core for both signals of a stereo unit at 48 kHz.
constexpr double kLoadGoal = 1;

std::vector<Row> measureSpeed() {
  const auto ratio = [](const meter_signals::Samples& samples) {
    return bench::measureTruePeakSpeed(samples, kRounds).ratio();
  };
  return {
      atLeast("true_peak_speed_loud", ratio(meter_signals::hotMix(kFrames, 4, 1)), kSpeedGoal),
      atLeast("true_peak_speed_hot", ratio(meter_signals::hotMix(kFrames, 20, 1)), kSpeedGoal),
      atLeast("true_peak_speed_clipped", ratio(meter_signals::clippedMix(kFrames, 8, 1)),
              kSpeedGoal),
      atLeast("true_peak_speed_brickwall", ratio(meter_signals::clippedMix(kFrames, 40, 1)),
              kSpeedGoal),
  };
}

/// Steady sines of one second at 44.1 kHz in eight phases. Frequencies are relative to the sample
/// rate, so one run covers all rates.
std::vector<Row> measureError() {
  double highest = -100;
  double lowest = 100;
  for (double frequency = 0.001; frequency <= 0.4501; frequency += 0.00449) {
    for (int phase = 0; phase < 8; ++phase) {
      converter::TruePeakMeter meter;
      const auto samples = meter_signals::fadedSine(frequency, 45.0 * phase + 7, 0.5, 44100, 4410);
      meter.process(samples.data(), samples.size());
      const double error = 20 * std::log10(double{meter.interSamplePeak()} / 0.5);
      highest = std::max(highest, error);
      lowest = std::min(lowest, error);
    }
  }
  return {atMost("true_peak_error_highest", highest, kHighestError, "dB"),
          atLeast("true_peak_error_lowest", lowest, kLowestError, "dB")};
}

std::vector<Row> measureLoad() {
  const auto samples = meter_signals::hotMix(kFrames, 4, 1);
  return {atMost("metering_load", 100 * bench::measureMeteringLoad(samples, 512, 9), kLoadGoal,
                 "% of a core")};
}

}  // namespace

Family truePeakSpeed() {
  return {{"true_peak_speed_loud", "true_peak_speed_hot", "true_peak_speed_clipped",
           "true_peak_speed_brickwall"},
          measureSpeed};
}

Family truePeakError() {
  return {{"true_peak_error_highest", "true_peak_error_lowest"}, measureError};
}

Family meteringLoad() {
  return {{"metering_load"}, measureLoad};
}

}  // namespace figures

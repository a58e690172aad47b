#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "contract/ConverterInterface.h"
#include "converter/meters/InterSampleAnalysis.h"

namespace converter {

/// What a meter shows, in dB, for silence and everything below: the step of a 24-bit sample.
/// Displays of the statistics end far above it, at -60 dB.
inline constexpr float kMeterFloorDecibels = -144.0F;

/// 20 log10 of a magnitude relative to full scale, at least `kMeterFloorDecibels`. Above 0 exactly
/// when the magnitude is above 1.
float decibelsOfMagnitude(float magnitude) noexcept;

/// The record of a signal in which nothing has been metered.
constexpr velk::TruePeakStats clearedStatistics() {
  return {kMeterFloorDecibels, kMeterFloorDecibels, 0, 0};
}

/// Meters one channel: sample peak, inter-sample (true) peak, clipped samples and inter-sample
/// overs since the last reset.
///
/// The inter-sample readings are those of the signal interpolated to sixteen points per sample
/// interval (ITU-R BS.1770-4 Annex 2 asks for four). Sines up to 0.45 of the sample rate read
/// within +0.02 and -0.04 dB of their amplitude, once their crest has come near one of the points.
///
/// A sample clip is one sample of magnitude above 1, strictly; an infinite one is one too. An
/// inter-sample over is one sample interval, from a sample up to but not including the next, in
/// which the interpolated signal has a point of magnitude above 1, the sample itself included; one
/// loud stretch of many samples counts once for each of its intervals, like the sample clips beside
/// it.
///
/// A sample that is no sound (not a number, infinite, or beyond 1e30) is taken as 0 by both peaks
/// and by the interpolation, so that none stays in the readings or in the filter. So is one
/// below 1e-15, whose products would slow the processor down.
///
/// Readings and counts depend on the samples and on where resets are, and on nothing else: not on
/// block sizes, nor on the processor. An interval is metered when `kDelay` samples have followed
/// its own; the sample peak, the clips, and the sample peak's share of the inter-sample peak are
/// immediate. All of it is the audio thread's; nothing here allocates, locks, waits or throws.
class TruePeakMeter {
 public:
  /// Samples that follow an interval's own before that interval is metered.
  static constexpr std::size_t kDelay = kSamplesAfter;

  void process(const float* samples, std::size_t frames) noexcept;

  /// Clears the readings between two blocks. Intervals of samples from before the reset are not
  /// metered any more, those of samples after it are, with the true signal before them.
  void reset() noexcept;

  /// Takes samples that are not metered: only as what lies before those that are.
  void pass(const float* samples, std::size_t frames) noexcept;

  /// Ends the signal where silence follows: meters its last intervals, and takes the next sample as
  /// the first of a new signal. Keeps the readings.
  void finish() noexcept;

  /// Ends the signal where it is cut, as `finish`, but its last `kDelay` intervals are never
  /// metered: what would have followed is unknown, and a cut makes peaks that are not the signal's.
  void abandon() noexcept;

  /// Magnitudes relative to full scale; 0 when nothing was heard.
  float samplePeak() const noexcept { return samplePeak_; }
  /// Never below the sample peak.
  float interSamplePeak() const noexcept { return interSample_.peak; }
  std::int64_t sampleClipCount() const noexcept { return sampleClips_; }
  std::int64_t interSampleOverCount() const noexcept { return interSample_.overs; }

  /// The same with peaks in dBFS and dBTP.
  const velk::TruePeakStats& statistics() const noexcept { return statistics_; }

 private:
  static constexpr std::size_t kHistory = kSamplesBefore + kSamplesAfter;

  void takeSamples(const float* samples, std::size_t count) noexcept;
  void updateStatistics() noexcept;

  float samplePeak_ = 0;
  std::int64_t sampleClips_ = 0;
  InterSampleReadings interSample_{0, 0};
  /// Intervals still to come that belong to samples before the signal or before the last reset.
  std::size_t intervalsToSkip_ = kDelay;
  velk::TruePeakStats statistics_ = clearedStatistics();
  float shownSamplePeak_ = 0;
  float shownInterSamplePeak_ = 0;
  alignas(64) std::array<float, kHistory + kMaximumIntervals + kRow> signal_{};
};

}  // namespace converter

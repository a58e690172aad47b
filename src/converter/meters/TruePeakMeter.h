#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "contract/ConverterInterface.h"
#include "converter/meters/InterSampleAnalysis.h"

namespace converter {

/// The lowest level that a meter reports, in dB, for silence too: about one step of a 24-bit
/// sample. Displays end far above it, at -60 dB.
inline constexpr float kMeterFloorDecibels = -144.0F;

/// 20 log10 of a magnitude relative to full scale, at least `kMeterFloorDecibels`. Above 0 exactly
/// when the magnitude is above 1.
float decibelsOfMagnitude(float magnitude) noexcept;

/// The statistics of a channel when nothing has been metered.
constexpr velk::TruePeakStats clearedStatistics() {
  return {kMeterFloorDecibels, kMeterFloorDecibels, 0, 0};
}

/// Meters one channel: sample peak, inter-sample (true) peak, clipped samples and inter-sample
/// overs since the last reset.
///
/// Inter-sample readings come from the signal interpolated to sixteen points per sample interval
/// (ITU-R BS.1770-4 Annex 2 asks for four). Sines up to 0.45 of the sample rate read between -0.04
/// and +0.02 dB of their amplitude, once a crest has come close to one of the points.
///
/// A sample clip is a sample whose magnitude is strictly above 1, infinity included. An
/// inter-sample over is a sample interval, from one sample up to but not including the next, in
/// which any point of the interpolated signal, the sample included, has a magnitude above 1. A loud
/// passage counts once for each of its intervals, just as it counts a clip for each of its samples.
///
/// A sample that is no sound (NaN, infinite or beyond 1e30) counts as 0 for both peaks and for the
/// interpolation, so that it spoils neither the readings nor the filter. So does one below 1e-15,
/// because denormal products would slow the processor down.
///
/// Readings and counts depend on the samples and on where resets fall, and on nothing else: neither
/// on block sizes nor on the processor. An interval is metered once `kDelay` further samples have
/// arrived after its own; the sample peak and the clips are immediate, and the inter-sample peak is
/// at once raised to the sample peak. Audio thread; nothing here allocates, locks, waits or throws.
class TruePeakMeter {
 public:
  /// Samples that have to follow an interval's own sample before the interval is metered.
  static constexpr std::size_t kDelay = kSamplesAfter;

  void process(const float* samples, std::size_t frames) noexcept;

  /// Clears the readings between two blocks. Intervals of earlier samples are no longer metered;
  /// those of later samples are, and their interpolation still uses the signal from before.
  void reset() noexcept;

  /// Takes samples without metering them; they only serve the interpolation of the next ones.
  void pass(const float* samples, std::size_t frames) noexcept;

  /// Leaves out a stretch that is missing: no interval is metered whose interpolation would reach
  /// into it from either side. Keeps the readings.
  void leaveOut() noexcept;

  /// Ends the signal as if silence followed: meters its last intervals. The next sample starts a
  /// new signal. Keeps the readings.
  void finish() noexcept;

  /// Ends the signal at a cut: like `finish`, but its last `kDelay` intervals are never metered,
  /// because a cut makes peaks that the signal itself does not have.
  void abandon() noexcept;

  /// Magnitude relative to full scale; 0 before any sound.
  float samplePeak() const noexcept { return samplePeak_; }
  /// Likewise; never below the sample peak.
  float interSamplePeak() const noexcept { return interSample_.peak; }
  std::int64_t sampleClipCount() const noexcept { return sampleClips_; }
  std::int64_t interSampleOverCount() const noexcept { return interSample_.overs; }

  /// The same readings, with peaks in dBFS and dBTP.
  const velk::TruePeakStats& statistics() const noexcept { return statistics_; }

 private:
  static constexpr std::size_t kHistory = kSamplesBefore + kSamplesAfter;

  void takeSamples(const float* samples, std::size_t count) noexcept;
  void updateStatistics() noexcept;

  float samplePeak_ = 0;
  std::int64_t sampleClips_ = 0;
  InterSampleReadings interSample_{0, 0};
  /// Intervals still to come that belong to samples from before the signal or the last reset.
  std::size_t intervalsToSkip_ = kDelay;
  velk::TruePeakStats statistics_ = clearedStatistics();
  float shownSamplePeak_ = 0;
  float shownInterSamplePeak_ = 0;
  alignas(64) std::array<float, kHistory + kMaximumIntervals + kRow> signal_{};
};

}  // namespace converter

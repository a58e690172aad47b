#pragma once

#include <array>
#include <cstddef>

#include "contract/ConverterInterface.h"
#include "converter/meters/PeakStatisticsExchange.h"
#include "converter/meters/Soundness.h"
#include "converter/meters/TruePeakMeter.h"

namespace converter {

/// Meters a unit's source and encoded signal at the same point, so that a reset affects both at the
/// same sample, and publishes the readings.
class SignalMeters {
 public:
  /// Only the first two channels are metered. The statistics of channels that do not exist stay
  /// cleared.
  explicit SignalMeters(std::size_t channels) noexcept;

  /// Carries out a pending reset, then meters one block of both signals and publishes the readings.
  /// Of the encoded signal, whose stretches are as long as the block, only what is sound counts.
  /// Audio thread; never allocates, locks or waits.
  void process(const float* const* source, const float* const* encoded, std::size_t frames,
               Stretches ofEncoded) noexcept;

  /// Takes one block of both signals without metering it; see `TruePeakMeter::pass`. Carries out a
  /// pending reset, too. Audio thread; never allocates, locks or waits.
  void pass(const float* const* source, const float* const* encoded, std::size_t frames) noexcept;

  /// Ends both signals at a cut, such as a seek; see `TruePeakMeter::abandon`. Not while `process`
  /// runs.
  void abandon() noexcept;

  /// Ends both signals at the end of the audio; see `TruePeakMeter::finish`. Not while `process`
  /// runs.
  void finish() noexcept;

  /// Clears peaks and counts; readers see it at once. Any thread; wait-free.
  void requestReset() noexcept { exchange_.requestReset(); }

  /// Peaks and counts since the last reset. Any thread; lock-free.
  velk::PeakStatistics read() const noexcept { return exchange_.read(); }

 private:
  static constexpr std::size_t kChannels = 2;

  void takeReset() noexcept;
  void publish() noexcept;

  std::size_t channels_;
  std::array<TruePeakMeter, kChannels> source_;
  std::array<TruePeakMeter, kChannels> encoded_;
  PeakStatisticsExchange exchange_;
};

}  // namespace converter

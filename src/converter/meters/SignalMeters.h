#pragma once

#include <array>
#include <cstddef>

#include "contract/ConverterInterface.h"
#include "converter/meters/PeakStatisticsExchange.h"
#include "converter/meters/TruePeakMeter.h"

namespace converter {

/// Meters source and encoded signal of a unit at one point, so that a reset cuts both at the same
/// sample, and hands the readings over.
class SignalMeters {
 public:
  /// Any channels from the third on are not metered; the slots of channels that do not exist stay
  /// cleared.
  explicit SignalMeters(std::size_t channels) noexcept;

  /// Takes a pending reset, then meters one block of both signals and shows the result to the
  /// readers. Audio thread; never allocates, locks or waits.
  void process(const float* const* source, const float* const* encoded,
               std::size_t frames) noexcept;

  /// Takes one block of both signals without metering it; see `TruePeakMeter::pass`. A pending
  /// reset is taken too. Audio thread; never allocates, locks or waits.
  void pass(const float* const* source, const float* const* encoded, std::size_t frames) noexcept;

  /// Ends both signals, as before a seek; see `TruePeakMeter::abandon`. Not while `process` runs.
  void abandon() noexcept;

  /// Ends both signals at the end of all audio; see `TruePeakMeter::finish`. Not while `process`
  /// runs.
  void finish() noexcept;

  /// Clears peaks and counts, for readers at once. Any thread; wait-free.
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

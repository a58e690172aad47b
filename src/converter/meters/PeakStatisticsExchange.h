#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

#include "contract/ConverterInterface.h"

namespace converter {

/// Passes the statistics from the audio thread to any number of readers, and reset requests the
/// other way.
///
/// Readers see a reset at once, even if the audio thread never runs again: until the audio thread
/// has taken the request and published statistics metered after it, `read` returns cleared ones. So
/// a reader that knows of a request never sees a value from before it.
class PeakStatisticsExchange {
 public:
  PeakStatisticsExchange() noexcept;

  /// Whether a reset was requested since the last call. The caller then has to clear its meters
  /// before the next block. Audio thread; wait-free.
  bool takeResetRequest() noexcept;

  /// Publishes statistics metered since the last request taken. Audio thread; wait-free.
  void publish(const velk::PeakStatistics& statistics) noexcept;

  /// Any thread; wait-free.
  void requestReset() noexcept;

  /// The statistics of one `publish`, never mixed. Any thread; lock-free: it retries only if
  /// `publish` ran twice meanwhile, and never waits for an audio thread stopped inside `publish`.
  velk::PeakStatistics read() const noexcept;

 private:
  static constexpr std::size_t kWords = sizeof(velk::PeakStatistics) / sizeof(std::uint64_t);
  static constexpr std::uint64_t kBeingWritten = ~std::uint64_t{0};

  /// Statistics under a sequence lock. The words are atomic because a reader may load them while
  /// they change; it finds out afterwards and discards them.
  struct Slot {
    std::atomic<std::uint64_t> edition{0};
    std::atomic<std::uint64_t> resetsTaken{0};
    std::array<std::atomic<std::uint64_t>, kWords> words{};
  };

  bool readSlot(std::uint64_t edition, velk::PeakStatistics& statistics,
                std::uint64_t& resetsTaken) const noexcept;

  std::atomic<std::uint64_t> resetsRequested_{0};
  /// Written by the audio thread only; on a cache line that requests do not touch.
  alignas(64) std::atomic<std::uint64_t> newestEdition_{0};
  std::uint64_t resetsTaken_ = 0;
  /// Edition n is in slot n % 2, so that the newest stays intact while the next is written.
  std::array<Slot, 2> slots_;
};

/// The statistics when nothing has been metered.
velk::PeakStatistics clearedPeakStatistics() noexcept;

}  // namespace converter

#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

#include "contract/ConverterInterface.h"

namespace converter {

/// Hands the statistics block from the audio thread to any number of readers, and requests to clear
/// it the other way.
///
/// A request takes effect for readers at once, even if the audio thread never runs again: until a
/// block has been published that was metered after the request was taken, `read` gives cleared
/// statistics. So no reader that knows of a request ever sees a value from before it.
class PeakStatisticsExchange {
 public:
  PeakStatisticsExchange() noexcept;

  /// Whether a reset was requested since the last call: the caller then clears its meters before
  /// the next block. Audio thread; wait-free.
  bool takeResetRequest() noexcept;

  /// Shows the readers a new block, metered since the last request that was taken. Audio thread;
  /// wait-free.
  void publish(const velk::PeakStatistics& statistics) noexcept;

  /// Any thread; wait-free.
  void requestReset() noexcept;

  /// A block as one `publish` gave it. Any thread; lock-free: reads again only if `publish` ran
  /// twice meanwhile, and never waits for an audio thread that was stopped in the middle of it.
  velk::PeakStatistics read() const noexcept;

 private:
  static constexpr std::size_t kWords = sizeof(velk::PeakStatistics) / sizeof(std::uint64_t);
  static constexpr std::uint64_t kBeingWritten = ~std::uint64_t{0};

  /// A block under a sequence lock. The words are atomic, because a reader may look while they
  /// change and only then find out.
  struct Slot {
    std::atomic<std::uint64_t> edition{0};
    std::atomic<std::uint64_t> resetsTaken{0};
    std::array<std::atomic<std::uint64_t>, kWords> words{};
  };

  bool readSlot(std::uint64_t edition, velk::PeakStatistics& statistics,
                std::uint64_t& resetsTaken) const noexcept;

  std::atomic<std::uint64_t> resetsRequested_{0};
  /// Written by the audio thread alone; on a cache line that requests do not touch.
  alignas(64) std::atomic<std::uint64_t> newestEdition_{0};
  std::uint64_t resetsTaken_ = 0;
  /// Edition n is in slot n modulo 2, so that the newest one stays whole while the next is written.
  std::array<Slot, 2> slots_;
};

/// A block in which nothing has been metered.
velk::PeakStatistics clearedPeakStatistics() noexcept;

}  // namespace converter

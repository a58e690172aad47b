#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>

#include "audio_unit/Change.h"

namespace audio_unit {

/// A bounded queue with any number of writing threads and one reading thread. Pushing is lock-free
/// and never allocates.
///
/// As in Dmitry Vyukov's bounded queue, each cell holds the turn at which it may next be written or
/// read: a writer claims a cell by advancing the tail, fills it and then marks it readable.
class ChangeQueue {
 public:
  struct Entry {
    Change change;
    /// Position among all changes this queue has ever taken.
    UInt64 ticket;
  };

  /// `capacity` must be a power of two.
  explicit ChangeQueue(std::size_t capacity);

  /// Returns false if the queue is full. Any thread.
  bool push(const Change& change) noexcept;
  /// The ticket that the next change will get. Any thread.
  UInt64 nextTicket() const noexcept { return tail_.load(std::memory_order_acquire); }

  /// Takes the oldest change, if its ticket is below `end` and its writer has finished. Reading
  /// thread only.
  std::optional<Entry> pop(UInt64 end) noexcept;
  /// Whether `pop` could take a change. Reading thread only.
  bool isReadable() const noexcept;

 private:
  struct Cell {
    std::atomic<UInt64> turn;
    Change change;
  };

  Cell& cell(UInt64 ticket) const noexcept { return cells_[ticket & mask_]; }

  const UInt64 mask_;
  const std::unique_ptr<Cell[]> cells_;
  alignas(64) std::atomic<UInt64> tail_{0};
  alignas(64) UInt64 head_ = 0;
};

}  // namespace audio_unit

#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>

#include "audio_unit/Change.h"

namespace audio_unit {

/// A bounded queue from any number of threads to one. Adding is lock-free and never allocates.
///
/// Every cell carries the number of the round in which it may be written or read next, as in Dmitry
/// Vyukov's bounded queue: a writer claims a place by advancing one counter, fills the cell and
/// then marks it readable.
class ChangeQueue {
 public:
  struct Entry {
    Change change;
    /// Place in the order of all changes that this queue ever took.
    UInt64 ticket;
  };

  /// `capacity` is a power of two.
  explicit ChangeQueue(std::size_t capacity);

  /// Any thread. False when the queue is full.
  bool push(const Change& change) noexcept;
  /// The ticket that the next change will get. Any thread.
  UInt64 nextTicket() const noexcept { return tail_.load(std::memory_order_acquire); }

  /// Takes the oldest change if its ticket is below `end` and its writer has finished. Reading
  /// thread only.
  std::optional<Entry> pop(UInt64 end) noexcept;
  /// Whether `pop` could take one. Reading thread only.
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

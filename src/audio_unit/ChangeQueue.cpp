#include "audio_unit/ChangeQueue.h"

namespace audio_unit {

static_assert(std::atomic<UInt64>::is_always_lock_free);

ChangeQueue::ChangeQueue(std::size_t capacity)
    : mask_(capacity - 1), cells_(std::make_unique<Cell[]>(capacity)) {
  for (std::size_t i = 0; i < capacity; ++i) cells_[i].turn.store(i, std::memory_order_relaxed);
}

bool ChangeQueue::push(const Change& change) noexcept {
  UInt64 ticket = tail_.load(std::memory_order_relaxed);
  for (;;) {
    Cell& place = cell(ticket);
    const UInt64 turn = place.turn.load(std::memory_order_acquire);
    if (turn == ticket) {
      // Release: a thread that then reads `nextTicket` also sees everything done before this push.
      if (tail_.compare_exchange_weak(ticket, ticket + 1, std::memory_order_release,
                                      std::memory_order_relaxed)) {
        place.change = change;
        place.turn.store(ticket + 1, std::memory_order_release);
        return true;
      }
    } else if (turn < ticket) {
      return false;
    } else {
      ticket = tail_.load(std::memory_order_relaxed);
    }
  }
}

std::optional<ChangeQueue::Entry> ChangeQueue::pop(UInt64 end) noexcept {
  if (head_ >= end || !isReadable()) return std::nullopt;
  Cell& place = cell(head_);
  Entry entry{place.change, head_};
  place.turn.store(head_ + mask_ + 1, std::memory_order_release);
  ++head_;
  return entry;
}

bool ChangeQueue::isReadable() const noexcept {
  return cell(head_).turn.load(std::memory_order_acquire) == head_ + 1;
}

}  // namespace audio_unit

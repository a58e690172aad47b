#pragma once

#include <atomic>
#include <optional>

#include "audio_unit/ChangeQueue.h"
#include "audio_unit/WakeUp.h"

namespace audio_unit {

/// Holds the changes that wait for one run loop.
///
/// The mailboxes of a process form a list that only ever grows, so that a thread can post a change
/// without a lock. A released mailbox is reused by the next run loop instead of being freed.
class Mailbox {
 public:
  /// How many changes can wait before the mailbox overflows.
  static constexpr std::size_t kCapacity = 4096;

  /// Posts the change to every open mailbox. Any thread.
  static void postToAll(const Change& change) noexcept;

  /// Gets a closed mailbox for the calling run loop, to be given back with `release`.
  static Mailbox& acquire();
  void release() noexcept;

  // The rest is for the run loop that acquired it.

  /// Accepts changes from now on; discards whatever is left over.
  void open() noexcept;
  /// Accepts no further changes.
  void close() noexcept { isOpen_.store(false); }

  UInt64 nextTicket() const noexcept { return queue_.nextTicket(); }
  std::optional<ChangeQueue::Entry> take(UInt64 end) noexcept { return queue_.pop(end); }
  bool hasChange() const noexcept { return queue_.isReadable(); }
  /// Whether a change has found no room since the last call.
  bool takeOverflow() noexcept { return hasOverflowed_.exchange(false); }

  WakeUp& wakeUp() noexcept { return wakeUp_; }
  const WakeUp& wakeUp() const noexcept { return wakeUp_; }

 private:
  Mailbox() = default;
  void post(const Change& change) noexcept;

  ChangeQueue queue_{kCapacity};
  WakeUp wakeUp_;
  std::atomic<bool> isTaken_{true};
  std::atomic<bool> isOpen_{false};
  std::atomic<bool> hasOverflowed_{false};
  Mailbox* next_ = nullptr;
};

}  // namespace audio_unit

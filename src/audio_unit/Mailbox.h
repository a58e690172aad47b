#pragma once

#include <atomic>
#include <optional>

#include "audio_unit/ChangeQueue.h"
#include "audio_unit/WakeUp.h"

namespace audio_unit {

/// Where changes wait for one run loop.
///
/// All mailboxes of the process form a list that only ever grows, so that a thread that makes a
/// change finds them without a lock. One that its run loop gave back is used again by the next run
/// loop instead of being freed.
class Mailbox {
 public:
  /// Changes that can wait in one mailbox between two pumps before it overflows.
  static constexpr std::size_t kCapacity = 4096;

  /// Hands the change to every open mailbox. Any thread.
  static void postToAll(const Change& change) noexcept;

  /// A closed mailbox for the calling run loop. Give it back with `release`.
  static Mailbox& acquire();
  void release() noexcept;

  // The rest is for the run loop that acquired it.

  /// Takes changes from now on; forgets what may be left from former times.
  void open() noexcept;
  /// Takes no further changes.
  void close() noexcept { isOpen_.store(false); }

  UInt64 nextTicket() const noexcept { return queue_.nextTicket(); }
  std::optional<ChangeQueue::Entry> take(UInt64 end) noexcept { return queue_.pop(end); }
  bool hasChange() const noexcept { return queue_.isReadable(); }
  /// Whether a change found no room since the last call.
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

#include "audio_unit/Mailbox.h"

namespace audio_unit {
namespace {

// Mailboxes are never destroyed: a thread may still make changes while the process exits.
constinit std::atomic<Mailbox*> firstMailbox{nullptr};

}  // namespace

void Mailbox::postToAll(const Change& change) noexcept {
  for (Mailbox* box = firstMailbox.load(std::memory_order_acquire); box; box = box->next_) {
    if (box->isOpen_.load()) box->post(change);
  }
}

Mailbox& Mailbox::acquire() {
  for (Mailbox* box = firstMailbox.load(std::memory_order_acquire); box; box = box->next_) {
    if (!box->isTaken_.exchange(true)) return *box;
  }
  auto* box = new Mailbox;
  box->next_ = firstMailbox.load(std::memory_order_relaxed);
  while (!firstMailbox.compare_exchange_weak(box->next_, box, std::memory_order_release,
                                             std::memory_order_relaxed)) {
  }
  return *box;
}

void Mailbox::release() noexcept {
  close();
  wakeUp_.set(nullptr);
  isTaken_.store(false);
}

void Mailbox::open() noexcept {
  wakeUp_.acknowledge();
  hasOverflowed_.store(false);
  const UInt64 end = queue_.nextTicket();
  while (queue_.pop(end)) {
  }
  isOpen_.store(true);
}

void Mailbox::post(const Change& change) noexcept {
  if (!queue_.push(change)) hasOverflowed_.store(true);
  wakeUp_.request();
}

}  // namespace audio_unit

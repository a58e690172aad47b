#pragma once

#include <atomic>
#include <cstddef>
#include <vector>

namespace converter {

/// A queue of items made once, from one writing thread to one reading thread, without locks. Items
/// are filled and read in place.
template <typename Item>
class SpscQueue {
 public:
  explicit SpscQueue(std::size_t capacity) : items_(capacity) {}

  /// Writer: the next item to fill, or null when the queue is full. The same one until `push`.
  Item* claim() {
    const std::size_t written = written_.load(std::memory_order_relaxed);
    if (written - read_.load(std::memory_order_acquire) == items_.size()) return nullptr;
    return &items_[written % items_.size()];
  }
  /// Writer: hands over the claimed item.
  void push() {
    written_.store(written_.load(std::memory_order_relaxed) + 1, std::memory_order_release);
  }

  /// Reader: the oldest item, or null when the queue is empty.
  Item* front() {
    const std::size_t read = read_.load(std::memory_order_relaxed);
    if (written_.load(std::memory_order_acquire) == read) return nullptr;
    return &items_[read % items_.size()];
  }
  /// Reader: gives the oldest item back.
  void pop() { read_.store(read_.load(std::memory_order_relaxed) + 1, std::memory_order_release); }

  /// Either thread: what was pushed and the reader has not given back yet.
  std::size_t size() const {
    // In this order, that what the other thread does meanwhile never makes it negative.
    const std::size_t read = read_.load(std::memory_order_acquire);
    return written_.load(std::memory_order_acquire) - read;
  }
  bool empty() const { return size() == 0; }

  /// While neither thread uses the queue.
  void clear() {
    read_.store(0, std::memory_order_relaxed);
    written_.store(0, std::memory_order_relaxed);
  }

 private:
  std::vector<Item> items_;
  alignas(64) std::atomic<std::size_t> written_{0};
  alignas(64) std::atomic<std::size_t> read_{0};
};

}  // namespace converter

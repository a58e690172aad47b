#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <vector>

namespace realtime {

/// A ring of items from one writing thread to one reading thread. Nothing but the constructor
/// allocates; nothing locks or waits.
///
/// Large items, such as blocks, are filled and read in place; small ones, such as samples, are
/// copied, many at a time.
template <typename Item>
class SpscRing {
 public:
  /// The items are made here, once. There is room for at least one.
  explicit SpscRing(std::size_t capacity) : items_(std::max<std::size_t>(capacity, 1)) {}

  /// Items written and not yet read; the reader may find more later. Reader or writer.
  std::size_t readable() const noexcept {
    const std::size_t read = read_.load(std::memory_order_acquire);
    return written_.load(std::memory_order_acquire) - read;
  }
  /// Items that there is room for; the writer may find more later. Reader or writer.
  std::size_t writable() const noexcept { return items_.size() - readable(); }
  bool empty() const noexcept { return readable() == 0; }

  /// Writer: the next item to fill, or null when the ring is full. The same one until `push`.
  Item* claim() noexcept {
    if (writable() == 0) return nullptr;
    return &items_[written_.load(std::memory_order_relaxed) % items_.size()];
  }
  /// Writer: hands over the claimed item.
  void push() noexcept { advance(written_, 1); }

  /// Reader: the oldest item, or null when the ring is empty.
  Item* front() noexcept {
    if (empty()) return nullptr;
    return &items_[read_.load(std::memory_order_relaxed) % items_.size()];
  }
  /// Reader: gives the oldest item back.
  void pop() noexcept { advance(read_, 1); }

  /// Writer: appends copies of `count` items, at most `writable()`.
  void write(const Item* items, std::size_t count) noexcept {
    const std::size_t start = written_.load(std::memory_order_relaxed) % items_.size();
    const std::size_t first = std::min(count, items_.size() - start);
    std::copy_n(items, first, items_.data() + start);
    std::copy_n(items + first, count - first, items_.data());
    advance(written_, count);
  }
  /// Reader: takes the oldest `count` items, at most `readable()`.
  void read(Item* items, std::size_t count) noexcept {
    const std::size_t start = read_.load(std::memory_order_relaxed) % items_.size();
    const std::size_t first = std::min(count, items_.size() - start);
    std::copy_n(items_.data() + start, first, items);
    std::copy_n(items_.data(), count - first, items + first);
    advance(read_, count);
  }

  /// Forgets what was written. While neither thread uses the ring.
  void clear() noexcept {
    read_.store(0, std::memory_order_relaxed);
    written_.store(0, std::memory_order_relaxed);
  }

 private:
  /// Only the thread that owns the position moves it on.
  static void advance(std::atomic<std::size_t>& position, std::size_t count) noexcept {
    position.store(position.load(std::memory_order_relaxed) + count, std::memory_order_release);
  }

  std::vector<Item> items_;
  // Positions since the start, each on a cache line of its own.
  alignas(64) std::atomic<std::size_t> written_{0};
  alignas(64) std::atomic<std::size_t> read_{0};
};

}  // namespace realtime

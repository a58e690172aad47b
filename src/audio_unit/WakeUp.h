#pragma once

#include <atomic>
#include <functional>

namespace audio_unit {

/// Calls a function once when work begins to wait, from whatever thread brings it, until the work
/// has been looked at. Requesting never locks, allocates or waits.
class WakeUp {
 public:
  WakeUp() = default;
  WakeUp(const WakeUp&) = delete;
  WakeUp& operator=(const WakeUp&) = delete;
  ~WakeUp();

  /// Returns when nobody runs the former function any more, which may then be destroyed. The new
  /// one is called at once if a request is open. Owner only.
  void set(std::function<void()> function);
  bool isSet() const noexcept { return function_.load() != nullptr; }

  /// Call after the work can be seen. Any thread.
  void request() noexcept;
  /// Call before looking for work. Owner only.
  void acknowledge() noexcept { requested_.exchange(false); }

 private:
  void call() noexcept;

  std::atomic<bool> requested_{false};
  std::atomic<const std::function<void()>*> function_{nullptr};
  /// How many threads may hold the function. Only the first request after an acknowledgement calls,
  /// so this is nearly always 0.
  std::atomic<int> callers_{0};
};

}  // namespace audio_unit

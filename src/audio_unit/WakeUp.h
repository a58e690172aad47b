#pragma once

#include <atomic>
#include <functional>

namespace audio_unit {

/// Calls a function when work arrives, on the thread that brings it, and not again until the owner
/// acknowledges. Requesting never locks, allocates or waits.
class WakeUp {
 public:
  WakeUp() = default;
  WakeUp(const WakeUp&) = delete;
  WakeUp& operator=(const WakeUp&) = delete;
  ~WakeUp();

  /// Replaces the function; returns when the previous one is no longer running. The new one is
  /// called at once if a request is pending. Owner only.
  void set(std::function<void()> function);
  bool isSet() const noexcept { return function_.load() != nullptr; }

  /// Call after making the work visible. Any thread.
  void request() noexcept;
  /// Call before looking for work. Owner only.
  void acknowledge() noexcept { requested_.exchange(false); }

 private:
  void call() noexcept;

  std::atomic<bool> requested_{false};
  std::atomic<const std::function<void()>*> function_{nullptr};
  /// How many threads may be using the function. Only the first request after an acknowledgement
  /// calls it, so this is nearly always 0.
  std::atomic<int> callers_{0};
};

}  // namespace audio_unit

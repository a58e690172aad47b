#pragma once

#include <chrono>

namespace converter {

/// How long a caller of `render` may be kept waiting for the codec, decided once for each call.
class Patience {
 public:
  using Clock = std::chrono::steady_clock;

  /// In strict real time.
  static constexpr Patience none() { return Patience(Clock::time_point{}); }
  /// Off line.
  static constexpr Patience endless() { return Patience(Clock::time_point::max()); }
  /// From now on.
  static Patience of(Clock::duration duration) {
    return duration > Clock::duration::zero() ? Patience(Clock::now() + duration) : none();
  }

  constexpr bool isNone() const { return deadline_ == Clock::time_point{}; }
  constexpr bool isEndless() const { return deadline_ == Clock::time_point::max(); }
  constexpr Clock::time_point deadline() const { return deadline_; }

 private:
  constexpr explicit Patience(Clock::time_point deadline) : deadline_(deadline) {}

  Clock::time_point deadline_;
};

}  // namespace converter

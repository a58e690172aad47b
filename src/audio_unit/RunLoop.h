#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "audio_unit/Export.h"

namespace audio_unit {

/// A thread's run loop, as far as event listeners need one. It has no loop of its own: a toolkit's
/// event loop, a tool or a test pumps it on its thread. `CFRunLoopGetCurrent` gives a thread's own.
class AUDIO_UNIT_EXPORT RunLoop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  RunLoop();
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;
  ~RunLoop();

  /// Delivers, on the calling thread, which has to be the loop's own, every event that is due at
  /// `now`. An event that a callback causes waits for the next pump. Returns when the next waiting
  /// event is due, or nothing when none waits.
  std::optional<TimePoint> pump(TimePoint now);

  /// Sets what is called, on whatever thread makes a change, when an event begins to wait in an
  /// idle loop: it has to return at once and must not allocate, lock or block. A null function
  /// removes it. Call on the loop's own thread.
  void setWakeUp(std::function<void()> wakeUp);
  /// Whether somebody pumps this loop already.
  bool hasWakeUp() const;

  /// For this library's own files.
  class State;
  State& state() { return *state_; }

 private:
  std::unique_ptr<State> state_;
};

}  // namespace audio_unit

#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "audio_unit/Export.h"

namespace audio_unit {

class Dispatcher;

/// A thread's run loop, as far as event listeners need one. It has no loop of its own: a toolkit's
/// event loop, a tool or a test pumps it on its thread. `CFRunLoopGetCurrent` gives a thread's own.
class AUDIO_UNIT_EXPORT RunLoop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  RunLoop();
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;
  /// Not inside a callback. Listeners that are left hear nothing any more; disposing of them later
  /// is safe.
  ~RunLoop();

  /// Delivers, on the calling thread, which has to be the loop's own, every event that is due at
  /// `now`. An event that a callback causes waits for the next pump. Returns when the next waiting
  /// event is due, or nothing when none waits.
  ///
  /// A callback may pump again (a modal loop does); that delivers what the outer pump has not yet
  /// delivered, in order, before anything newer. An exception that a callback throws passes
  /// through; the rest waits for the next pump, for which the wake-up is called.
  std::optional<TimePoint> pump(TimePoint now);

  /// Sets what is called, on whatever thread makes a change, when an event begins to wait in an
  /// idle loop: once from then on until the next pump begins. It has to return at once, must not
  /// throw, allocate, lock or block, and must not use this loop. If something waits already, it is
  /// called before this returns. A null function removes it.
  ///
  /// When this returns, nobody runs the former function any more and what it refers to may go.
  /// Making a change never waits for this call. Call on the loop's own thread.
  void setWakeUp(std::function<void()> wakeUp);
  /// Whether somebody pumps this loop already.
  bool hasWakeUp() const;

  /// For this library's own files.
  Dispatcher& dispatcher() { return *dispatcher_; }

 private:
  std::unique_ptr<Dispatcher> dispatcher_;
};

}  // namespace audio_unit

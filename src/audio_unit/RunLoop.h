#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "audio_unit/Export.h"

namespace audio_unit {

class Dispatcher;

/// A thread's run loop, reduced to what event listeners need. It does not loop by itself: a
/// toolkit's event loop, a tool or a test pumps it, on its own thread. `CFRunLoopGetCurrent`
/// returns the calling thread's.
class AUDIO_UNIT_EXPORT RunLoop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  RunLoop();
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;
  /// Must not be called inside a callback. Remaining listeners receive nothing more; disposing of
  /// them later is safe.
  ~RunLoop();

  /// Delivers every event that is due at `now`; call on the loop's own thread. An event that a
  /// callback causes waits for the next pump. Returns when the next waiting event is due, or
  /// nothing if none is waiting.
  ///
  /// A callback may pump again, as a modal loop does; the inner pump first delivers what the outer
  /// one has not yet delivered, in order. If a callback throws, the exception propagates, the rest
  /// waits for the next pump, and the wake-up is called to request that pump.
  std::optional<TimePoint> pump(TimePoint now);

  /// Sets the function that asks for a pump. It is called on whichever thread makes a change while
  /// the loop has listeners, at most once until the next pump starts. It must return at once, must
  /// not throw, allocate, lock or block, and must not use this loop. If a change is already
  /// waiting, it is called before this returns. A null function removes it.
  ///
  /// When this returns, the previous function is no longer running, so what it refers to may be
  /// destroyed. Making a change never waits for this call. Call on the loop's own thread.
  void setWakeUp(std::function<void()> wakeUp);
  /// Whether a wake-up is set, which means that the loop already has someone to pump it.
  bool hasWakeUp() const;

  /// For this library only.
  Dispatcher& dispatcher() { return *dispatcher_; }

 private:
  std::unique_ptr<Dispatcher> dispatcher_;
};

}  // namespace audio_unit

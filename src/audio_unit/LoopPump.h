#pragma once

#include <chrono>
#include <optional>

#include "audio_unit/Export.h"

namespace audio_unit {

class RunLoop;

/// Joins the calling thread's run loop to a toolkit's event loop: that watches the descriptor, and
/// pumps when it becomes readable and when the time has passed that the last pump gave. All on the
/// loop's own thread.
class AUDIO_UNIT_EXPORT LoopPump {
 public:
  /// Throws `std::system_error` when the system gives no descriptor.
  LoopPump();
  LoopPump(const LoopPump&) = delete;
  LoopPump& operator=(const LoopPump&) = delete;
  ~LoopPump();

  int descriptor() const { return descriptor_; }
  /// Delivers what is due. Returns how long the next waiting event can wait, or nothing when none
  /// waits.
  std::optional<std::chrono::steady_clock::duration> pump();

 private:
  RunLoop& loop_;
  int descriptor_;
};

}  // namespace audio_unit

#pragma once

#include <chrono>
#include <optional>

#include "audio_unit/Export.h"

namespace audio_unit {

class RunLoop;

/// Connects the calling thread's run loop to a toolkit's event loop, which has to watch the
/// descriptor and call `pump` when it becomes readable and when the time that the last pump
/// returned has passed. Everything here happens on the loop's own thread.
class AUDIO_UNIT_EXPORT LoopPump {
 public:
  /// Takes the loop's wake-up. Throws `std::system_error` if no descriptor is available.
  LoopPump();
  LoopPump(const LoopPump&) = delete;
  LoopPump& operator=(const LoopPump&) = delete;
  ~LoopPump();

  int descriptor() const { return descriptor_; }
  /// Delivers what is due. Returns the time until the next waiting event is due, if there is one.
  std::optional<std::chrono::steady_clock::duration> pump();

 private:
  RunLoop& loop_;
  int descriptor_;
};

}  // namespace audio_unit

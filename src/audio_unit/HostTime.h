#pragma once

#include <chrono>

#include "audio_unit/AudioUnitTypes.h"

namespace audio_unit {

/// A steady-clock time as listeners receive it, in nanoseconds.
inline UInt64 hostTime(std::chrono::steady_clock::time_point time) {
  return static_cast<UInt64>(
      std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count());
}

}  // namespace audio_unit

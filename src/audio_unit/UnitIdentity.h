#pragma once

#include <atomic>

#include "audio_unit/AudioUnitTypes.h"

namespace audio_unit {

/// What registrations hold instead of a unit; it outlives the unit and knows whether that is alive.
struct UnitIdentity {
  const UInt64 serial;
  std::atomic<bool> isAlive{true};
};

}  // namespace audio_unit

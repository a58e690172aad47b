#pragma once

#include <atomic>

#include "audio_unit/AudioUnitTypes.h"

namespace audio_unit {

/// What registrations keep of a unit: it outlives the unit and tells whether that is still there.
struct UnitIdentity {
  const UInt64 serial;
  std::atomic<bool> isAlive{true};
};

}  // namespace audio_unit

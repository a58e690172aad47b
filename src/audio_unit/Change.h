#pragma once

#include "audio_unit/AudioUnitTypes.h"

namespace audio_unit {

/// One change on its way to the listeners.
struct Change {
  AudioUnitEvent event;
  /// Which unit it is about: unlike an address, a serial number is never used again.
  UInt64 unitSerial;
  /// The new value of a parameter; 0 in every other event.
  AudioUnitParameterValue value;
  /// When it was made: steady clock, nanoseconds.
  UInt64 hostTime;
  /// Who is not to be called back. Only compared, for both may be gone by the time of delivery.
  const EventListener* sendingListener;
  const void* sendingObject;
};

}  // namespace audio_unit

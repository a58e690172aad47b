#pragma once

#include "audio_unit/AudioUnitTypes.h"

namespace audio_unit {

/// A change on its way to the listeners.
struct Change {
  AudioUnitEvent event;
  /// Identifies the unit: unlike an address, a serial number is never reused.
  UInt64 unitSerial;
  /// The parameter's new value; 0 if the event is not a value change.
  AudioUnitParameterValue value;
  /// When the change was made: steady clock, nanoseconds.
  UInt64 hostTime;
  /// The sender, which is not called back. Only compared, never dereferenced: both may be gone by
  /// the time of delivery.
  const EventListener* sendingListener;
  const void* sendingObject;
};

}  // namespace audio_unit

#pragma once

#include "audio_unit/AudioUnitTypes.h"

namespace converter {

/// What a unit is made for.
struct UnitFormat {
  /// 32000, 44100, 48000, 88200, 96000, 176400 or 192000 Hz. AAC knows none above 96000: the codec
  /// then works at half the rate, and only the source keeps what lies above.
  double sampleRate = 48000;
  /// 1 or 2.
  UInt32 channels = 2;
  /// The largest block that the unit is given to render, 1 to 8192 frames.
  UInt32 maximumFrames = 4096;
};

}  // namespace converter

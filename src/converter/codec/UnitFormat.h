#pragma once

#include "audio_unit/AudioUnitTypes.h"

namespace converter {

/// The audio format that a unit is made for.
struct UnitFormat {
  /// 32000, 44100, 48000, 88200, 96000, 176400 or 192000 Hz. AAC ends at 96000: above that the
  /// codec runs at half the rate, and the encoded signal loses the upper half of the band.
  double sampleRate = 48000;
  /// 1 or 2.
  UInt32 channels = 2;
  /// The largest block to render, 1 to 8192 frames.
  UInt32 maximumFrames = 4096;
};

}  // namespace converter

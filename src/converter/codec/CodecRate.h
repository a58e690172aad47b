#pragma once

#include "converter/codec/UnitFormat.h"

namespace converter {

/// The highest rate that AAC knows, Hz.
inline constexpr double kHighestCodecRate = 96000;

/// Samples of the unit for each one of the codec: 2 above the highest rate of AAC, otherwise 1.
constexpr UInt32 resamplingRatio(const UnitFormat& unit) {
  return unit.sampleRate > kHighestCodecRate ? 2 : 1;
}

/// What the codec works in.
constexpr UnitFormat codecFormat(const UnitFormat& unit) {
  return {unit.sampleRate / resamplingRatio(unit), unit.channels, unit.maximumFrames};
}

}  // namespace converter

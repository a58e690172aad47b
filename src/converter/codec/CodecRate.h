#pragma once

#include "converter/codec/UnitFormat.h"

namespace converter {

/// The highest sample rate of AAC, Hz.
inline constexpr double kHighestCodecRate = 96000;

/// The unit's sample rate over the codec's: 2 above the highest rate of AAC, otherwise 1.
constexpr UInt32 resamplingRatio(const UnitFormat& unit) {
  return unit.sampleRate > kHighestCodecRate ? 2 : 1;
}

/// The format in which the codec works.
constexpr UnitFormat codecFormat(const UnitFormat& unit) {
  return {unit.sampleRate / resamplingRatio(unit), unit.channels, unit.maximumFrames};
}

}  // namespace converter

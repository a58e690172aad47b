#pragma once

#include "converter/codec/CodecRate.h"
#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// Delay of HEv2, the longest of the formats: from a sample's place in the source to its place in
/// the decoded signal.
inline constexpr UInt32 kLongestCodecDelay = 7106;

/// How much less than its input a resampler may have put out, in samples of the higher of its two
/// rates. libsoxr 0.1.3 keeps back 1780 at the quality in use.
inline constexpr UInt32 kResamplerDelay = 2048;

/// At the codec's rate: the encoded signal that is made of the source block at `position` starts so
/// far before it.
inline constexpr Position kEncodedBehindSource = kLongestCodecDelay;

/// The same at the unit's rate. Resampled, it is later by the two resamplers and by the part of a
/// block that waits between them to be full.
constexpr Position encodedBehindSource(const UnitFormat& unit) {
  const Position ratio = resamplingRatio(unit);
  const Position behind = ratio * kEncodedBehindSource;
  return ratio == 1 ? behind : behind + 2 * Position{kResamplerDelay} + (ratio - 1) * kBlockFrames;
}

/// Samples of the unit in the longest access unit; the worker is woken at multiples of it.
constexpr UInt32 accessUnitFrames(const UnitFormat& unit) {
  return resamplingRatio(unit) * kBlockFrames;
}

/// Input to output: how far the encoded signal is behind, the access unit that the sample waits in
/// to be full, one access unit's time for the worker, and the block in which the host asks for it
/// all at once.
constexpr UInt32 latencyFor(const UnitFormat& unit) {
  return static_cast<UInt32>(encodedBehindSource(unit)) + 2 * accessUnitFrames(unit) +
         unit.maximumFrames;
}

}  // namespace converter

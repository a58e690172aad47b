#pragma once

#include "converter/codec/CodecRate.h"
#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// `CodecTiming::delay` of HEv2, the longest of the formats, in samples at the codec's rate.
inline constexpr UInt32 kLongestCodecDelay = 7106;

/// The most that a resampler may hold back, in samples of the higher of its two rates. libsoxr
/// 0.1.3 holds back 1780 at the quality in use.
inline constexpr UInt32 kResamplerDelay = 2048;

/// How long after a start in mid-play a codec's output is not yet what it would have been without:
/// the transform's two halves of an access unit, and as much for band replication. At the codec's
/// rate.
inline constexpr Position kSettlingFrames = 2 * Position{kBlockFrames};

/// How far before a source block the encoded block starts that it completes; at the codec's rate.
inline constexpr Position kEncodedBehindSource = kLongestCodecDelay;

/// The same at the unit's rate. Resampling adds the delay of two resamplers, and that of the
/// codec's block between them, which may be only partly filled.
constexpr Position encodedBehindSource(const UnitFormat& unit) {
  const Position ratio = resamplingRatio(unit);
  const Position behind = ratio * kEncodedBehindSource;
  return ratio == 1 ? behind : behind + 2 * Position{kResamplerDelay} + (ratio - 1) * kBlockFrames;
}

/// Length of the longest access unit at the unit's rate. The worker is woken at multiples of it.
constexpr UInt32 accessUnitFrames(const UnitFormat& unit) {
  return resamplingRatio(unit) * kBlockFrames;
}

/// Latency from input to output, in samples: how far the encoded signal lags behind, the access
/// unit that has to fill up, an access unit's time for the worker, and the host's largest block.
constexpr UInt32 latencyFor(const UnitFormat& unit) {
  return static_cast<UInt32>(encodedBehindSource(unit)) + 2 * accessUnitFrames(unit) +
         unit.maximumFrames;
}

}  // namespace converter

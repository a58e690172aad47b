#pragma once

#include "converter/AudioBlock.h"

namespace converter {

/// Delay of HEv2, the longest of the formats: from a sample's place in the source to its place in
/// the decoded signal.
inline constexpr UInt32 kLongestCodecDelay = 7106;

/// The encoded signal that the worker makes when it is given the source block at `position` starts
/// so far before it.
inline constexpr Position kEncodedBehindSource = kLongestCodecDelay;

/// Input to output: the longest codec delay, the access unit that the sample waits in to be full,
/// one access unit's time for the worker, and the block in which the host asks for it all at once.
inline constexpr UInt32 latencyFor(UInt32 maximumFrames) {
  return kLongestCodecDelay + kBlockFrames + kBlockFrames + maximumFrames;
}

}  // namespace converter

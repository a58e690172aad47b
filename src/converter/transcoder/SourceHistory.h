#pragma once

#include <array>
#include <vector>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// The latest stretch of the source, by position: what an encoder that starts late is primed from.
/// Silence before the first sample. Worker thread.
class SourceHistory {
 public:
  /// More than the longest way from the newest sample back to the first one that an encoder needs
  /// (HEv2: delay, block and priming together 14,335 samples). A power of two, so that no frame
  /// wraps.
  static constexpr UInt32 kFrames = 16384;

  explicit SourceHistory(UInt32 channels);

  /// Takes the next block. What lies between the last block and this one, if anything, is silence.
  void write(const AudioBlock& block);

  /// `length` samples of a channel from `position`, a multiple of `length` that is 1024 or 2048.
  const float* frame(UInt32 channel, Position position) const;

  /// Silence everywhere; the next block may be any.
  void clear();

 private:
  std::array<std::vector<float>, kMaximumChannels> planes_;
  Position end_ = 0;
};

}  // namespace converter

#pragma once

#include <array>
#include <vector>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// The most recent samples of the source, by position; they prime an encoder that is opened in
/// mid-signal. Silence before the first sample. Worker thread.
class SourceHistory {
 public:
  /// More than an encoder can need behind the newest sample (HEv2: a block, five priming frames and
  /// rounding to the frame grid, at most 14,335 samples). A power of two, so that no frame wraps.
  static constexpr UInt32 kFrames = 16384;

  explicit SourceHistory(UInt32 channels);

  /// Takes the next block. A gap since the last block becomes silence.
  void write(const AudioBlock& block);

  /// The codec frame of a channel that starts at `position`, a multiple of the frame length (1024
  /// or 2048). Contiguous.
  const float* frame(UInt32 channel, Position position) const;

  /// Sets everything to silence. The next block may have any position.
  void clear();

 private:
  std::array<std::vector<float>, kMaximumChannels> planes_;
  Position end_ = 0;
};

}  // namespace converter

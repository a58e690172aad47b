#pragma once

#include <vector>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// Delays planes of samples by a constant number of samples, bit-exactly. Audio thread.
class DelayLine {
 public:
  DelayLine(UInt32 channels, UInt32 delay, UInt32 maximumFrames);

  /// Takes the next `frames` samples, at most `maximumFrames`, and writes those from `delay`
  /// samples earlier.
  void process(const float* const* input, float* const* output, UInt32 frames);

  /// Fills the line with silence. Not while `process` runs.
  void clear();

 private:
  UInt32 delay_;
  std::size_t length_;
  std::size_t next_ = 0;
  std::vector<std::vector<float>> planes_;
};

}  // namespace converter

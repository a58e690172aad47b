#pragma once

#include <vector>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// Delays planes of samples by a constant, bit for bit. Audio thread.
class DelayLine {
 public:
  DelayLine(UInt32 channels, UInt32 delay, UInt32 maximumFrames);

  /// Takes `frames` samples, at most the maximum, and writes those of `delay` samples before.
  void process(const float* const* input, float* const* output, UInt32 frames);

  /// Silence inside.
  void clear();

 private:
  UInt32 delay_;
  std::size_t length_;
  std::size_t next_ = 0;
  std::vector<std::vector<float>> planes_;
};

}  // namespace converter

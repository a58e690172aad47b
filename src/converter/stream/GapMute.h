#pragma once

#include <vector>

#include "converter/meters/Soundness.h"
#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// Silences what is heard wherever the encoded signal lacks something, whichever signal it is: in a
/// blind test a hole that only one of the two had would give it away. Audio thread.
class GapMute {
 public:
  explicit GapMute(double sampleRate);

  /// Silences the gaps at once, and lets the signal back in within 10 ms after each. While it is
  /// not `active` it changes nothing.
  void process(float* const* output, UInt32 channels, Stretches ofEncoded, bool active);

 private:
  std::vector<float> curve_;
  /// Steps of the way back in that have been made; all of them where nothing is muted.
  std::size_t place_;
};

}  // namespace converter

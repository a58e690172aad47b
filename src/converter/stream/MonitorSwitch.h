#pragma once

#include <vector>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// Chooses between source and encoded signal, with a cross-fade that takes the same time both ways
/// and turns round where it is when the choice changes again. Audio thread.
class MonitorSwitch {
 public:
  explicit MonitorSwitch(double sampleRate);

  /// Writes the chosen signal. Away from a cross-fade it is the signal bit for bit.
  void process(const float* const* source, const float* const* encoded, float* const* output,
               UInt32 channels, UInt32 frames, bool chooseSource);

 private:
  std::vector<float> curve_;
  /// Steps from encoded, 0, to source, `curve_.size() + 1`.
  std::size_t place_ = 0;
};

}  // namespace converter

#pragma once

#include <vector>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// Switches between source and encoded signal with a cross-fade, equally long in both directions,
/// that turns back from where it is when the choice changes again. Audio thread.
class MonitorSwitch {
 public:
  explicit MonitorSwitch(double sampleRate);

  /// Writes the chosen signal, bit-exactly outside a cross-fade.
  void process(const float* const* source, const float* const* encoded, float* const* output,
               UInt32 channels, UInt32 frames, bool chooseSource);

 private:
  std::vector<float> curve_;
  /// Step of the cross-fade: 0 is encoded, `curve_.size() + 1` is source.
  std::size_t place_ = 0;
};

}  // namespace converter

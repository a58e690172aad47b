#include "converter/stream/GapMute.h"

#include <algorithm>

#include "converter/transcoder/FadeCurve.h"

namespace converter {

GapMute::GapMute(double sampleRate) : curve_(fadeCurve(sampleRate)), place_(curve_.size()) {}

void GapMute::process(float* const* output, UInt32 channels, Stretches ofEncoded, bool active) {
  if (!active) {
    place_ = curve_.size();
    return;
  }
  std::size_t at = 0;
  for (const auto& stretch : ofEncoded) {
    const std::size_t end = at + stretch.frames;
    if (stretch.soundness == Soundness::sound) {
      for (; at < end && place_ < curve_.size(); ++at) {
        const float gain = curve_[place_++];
        for (UInt32 channel = 0; channel < channels; ++channel) output[channel][at] *= gain;
      }
    } else {
      for (UInt32 channel = 0; channel < channels; ++channel) {
        std::fill(output[channel] + at, output[channel] + end, 0.0F);
      }
      place_ = 0;
    }
    at = end;
  }
}

}  // namespace converter

#include "converter/stream/MonitorSwitch.h"

#include <algorithm>

#include "converter/transcoder/FadeCurve.h"

namespace converter {

MonitorSwitch::MonitorSwitch(double sampleRate) : curve_(fadeCurve(sampleRate)) {}

void MonitorSwitch::process(const float* const* source, const float* const* encoded,
                            float* const* output, UInt32 channels, UInt32 frames,
                            bool chooseSource) {
  const std::size_t whole = curve_.size() + 1;
  const std::size_t target = chooseSource ? whole : 0;
  UInt32 faded = 0;
  for (; faded < frames && place_ != target; ++faded) {
    place_ = chooseSource ? place_ + 1 : place_ - 1;
    if (place_ == target) break;
    const float gain = curve_[place_ - 1];
    for (UInt32 channel = 0; channel < channels; ++channel) {
      const float from = encoded[channel][faded];
      output[channel][faded] = from + gain * (source[channel][faded] - from);
    }
  }
  const float* const* chosen = chooseSource ? source : encoded;
  for (UInt32 channel = 0; channel < channels; ++channel) {
    std::copy_n(chosen[channel] + faded, frames - faded, output[channel] + faded);
  }
}

}  // namespace converter

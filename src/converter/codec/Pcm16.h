#pragma once

#include <cstddef>
#include <cstdint>

namespace converter {

/// Clips a sample to full scale; NaN becomes 0.
inline float toEncodable(float sample) {
  const float number = sample == sample ? sample : 0.0F;
  const float below = number < 1.0F ? number : 1.0F;
  return below > -1.0F ? below : -1.0F;
}

/// Interleaves planes as 16-bit samples, scaled by 32768, rounded to nearest and clipped.
inline void interleavePcm16(const float* const* planes, std::size_t channels, std::size_t frames,
                            std::int16_t* interleaved) {
  for (std::size_t channel = 0; channel < channels; ++channel) {
    const float* plane = planes[channel];
    std::int16_t* out = interleaved + channel;
    for (std::size_t i = 0; i < frames; ++i) {
      const float scaled = toEncodable(plane[i]) * 32768.0F;
      const float rounded = scaled + (scaled < 0.0F ? -0.5F : 0.5F);
      const float inRange = rounded < 32767.0F ? rounded : 32767.0F;
      out[i * channels] = static_cast<std::int16_t>(static_cast<std::int32_t>(inRange));
    }
  }
}

}  // namespace converter

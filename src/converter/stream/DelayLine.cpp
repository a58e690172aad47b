#include "converter/stream/DelayLine.h"

#include <algorithm>

namespace converter {

DelayLine::DelayLine(UInt32 channels, UInt32 delay, UInt32 maximumFrames)
    : delay_(delay),
      length_(std::size_t{delay} + maximumFrames),
      planes_(channels, std::vector<float>(length_)) {}

void DelayLine::process(const float* const* input, float* const* output, UInt32 frames) {
  const std::size_t from = (next_ + length_ - delay_) % length_;
  const std::size_t writtenFirst = std::min<std::size_t>(frames, length_ - next_);
  const std::size_t readFirst = std::min<std::size_t>(frames, length_ - from);
  for (std::size_t channel = 0; channel < planes_.size(); ++channel) {
    float* plane = planes_[channel].data();
    const float* in = input[channel];
    std::copy_n(in, writtenFirst, plane + next_);
    std::copy_n(in + writtenFirst, frames - writtenFirst, plane);
    std::copy_n(plane + from, readFirst, output[channel]);
    std::copy_n(plane, frames - readFirst, output[channel] + readFirst);
  }
  next_ = (next_ + frames) % length_;
}

void DelayLine::clear() {
  for (auto& plane : planes_) std::ranges::fill(plane, 0.0F);
  next_ = 0;
}

}  // namespace converter

#include "converter/transcoder/RateChange.h"

#include <soxr.h>

#include <array>
#include <stdexcept>
#include <string>

#include "converter/transcoder/AudioBlock.h"
#include "converter/transcoder/Latency.h"

namespace converter {

void RateChange::Delete::operator()(void* resampler) const {
  soxr_delete(static_cast<soxr_t>(resampler));
}

RateChange::RateChange(Direction direction, UInt32 channels, UInt32 blockFrames)
    : planes_(channels) {
  const bool halves = direction == Direction::halve;
  const std::size_t kept = halves ? kResamplerDelay / 2 : kResamplerDelay;
  const std::size_t most = kept + (halves ? blockFrames / 2 : std::size_t{2} * blockFrames) + 1;
  for (auto& plane : planes_) plane.resize(most);
  soxr_error_t error = nullptr;
  const auto samples = soxr_io_spec(SOXR_FLOAT32_S, SOXR_FLOAT32_S);
  const auto quality = soxr_quality_spec(SOXR_VHQ, 0);
  const auto threads = soxr_runtime_spec(1);
  resampler_.reset(
      soxr_create(halves ? 2 : 1, halves ? 1 : 2, channels, &error, &samples, &quality, &threads));
  if (!resampler_) {
    throw std::runtime_error(std::string("libsoxr: ") +
                             (error != nullptr ? error : "no resampler"));
  }
}

std::size_t RateChange::process(std::span<const float* const> input, UInt32 frames) {
  std::array<void*, kMaximumChannels> output{};
  for (std::size_t channel = 0; channel < planes_.size(); ++channel) {
    output[channel] = planes_[channel].data();
  }
  std::size_t taken = 0;
  std::size_t made = 0;
  soxr_process(static_cast<soxr_t>(resampler_.get()), static_cast<const void*>(input.data()),
               frames, &taken, static_cast<void*>(output.data()), planes_[0].size(), &made);
  return made;
}

void RateChange::clear() {
  soxr_clear(static_cast<soxr_t>(resampler_.get()));
}

}  // namespace converter

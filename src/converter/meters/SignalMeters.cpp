#include "converter/meters/SignalMeters.h"

#include <algorithm>

namespace converter {
namespace {

void meterStretches(TruePeakMeter& meter, const float* samples, Stretches stretches) noexcept {
  for (const auto& stretch : stretches) {
    switch (stretch.soundness) {
      case Soundness::sound:
        meter.process(samples, stretch.frames);
        break;
      case Soundness::unsound:
        meter.pass(samples, stretch.frames);
        break;
      case Soundness::missing:
        meter.leaveOut();
        break;
    }
    samples += stretch.frames;
  }
}

}  // namespace

SignalMeters::SignalMeters(std::size_t channels) noexcept
    : channels_(std::min(channels, kChannels)) {}

void SignalMeters::process(const float* const* source, const float* const* encoded,
                           std::size_t frames, Stretches ofEncoded) noexcept {
  takeReset();
  for (std::size_t channel = 0; channel < channels_; ++channel) {
    source_[channel].process(source[channel], frames);
    meterStretches(encoded_[channel], encoded[channel], ofEncoded);
  }
  publish();
}

void SignalMeters::pass(const float* const* source, const float* const* encoded,
                        std::size_t frames) noexcept {
  takeReset();
  for (std::size_t channel = 0; channel < channels_; ++channel) {
    source_[channel].pass(source[channel], frames);
    encoded_[channel].pass(encoded[channel], frames);
  }
  publish();
}

void SignalMeters::abandon() noexcept {
  for (std::size_t channel = 0; channel < channels_; ++channel) {
    source_[channel].abandon();
    encoded_[channel].abandon();
  }
}

void SignalMeters::finish() noexcept {
  takeReset();
  for (std::size_t channel = 0; channel < channels_; ++channel) {
    source_[channel].finish();
    encoded_[channel].finish();
  }
  publish();
}

void SignalMeters::takeReset() noexcept {
  if (!exchange_.takeResetRequest()) return;
  for (std::size_t channel = 0; channel < channels_; ++channel) {
    source_[channel].reset();
    encoded_[channel].reset();
  }
}

void SignalMeters::publish() noexcept {
  velk::PeakStatistics statistics;
  statistics[velk::kPeakStatsSlot_SourceLeft] = source_[0].statistics();
  statistics[velk::kPeakStatsSlot_SourceRight] = source_[1].statistics();
  statistics[velk::kPeakStatsSlot_EncodedLeft] = encoded_[0].statistics();
  statistics[velk::kPeakStatsSlot_EncodedRight] = encoded_[1].statistics();
  exchange_.publish(statistics);
}

}  // namespace converter

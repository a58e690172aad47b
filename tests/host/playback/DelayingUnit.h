#pragma once

#include <cstddef>
#include <cstring>
#include <vector>

#include "converter/unit/ConverterUnit.h"

/// A converter that only delays, so that its output shows what went in and when.
class DelayingUnit : public converter::ConverterUnit {
 public:
  DelayingUnit(UInt32 channels, UInt32 latency)
      : latency_(latency), lines_(channels, std::vector<float>(latency)) {}

  UInt32 latency() const override { return latency_; }
  void render(const float* const* input, float* const* output, UInt32 frames) noexcept override {
    if (before.empty()) before.assign(input[0], input[0] + frames);
    for (std::size_t channel = 0; channel < lines_.size(); ++channel) {
      auto at = at_;
      for (UInt32 i = 0; i < frames; ++i) {
        const auto sample = input[channel][i];
        output[channel][i] = std::exchange(lines_[channel][at], sample);
        at = (at + 1) % latency_;
      }
    }
    at_ = (at_ + frames) % latency_;
    if (metering) metered.insert(metered.end(), output[0], output[0] + frames);
  }
  void reset() override {
    ++resets;
    before.clear();
    for (auto& line : lines_) std::fill(line.begin(), line.end(), 0.0F);
  }

  OSStatus getParameter(AudioUnitParameterID, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue&) override {
    return kAudioUnitErr_InvalidParameter;
  }
  OSStatus setParameter(AudioUnitParameterID, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue, UInt32) override {
    return kAudioUnitErr_InvalidParameter;
  }
  OSStatus getProperty(AudioUnitPropertyID, AudioUnitScope, AudioUnitElement, void*,
                       UInt32&) override {
    return kAudioUnitErr_InvalidProperty;
  }
  OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope, AudioUnitElement, const void* data,
                       UInt32 size) override {
    UInt32 value = 0;
    std::memcpy(&value, data, std::min<std::size_t>(size, sizeof value));
    switch (id) {
      case kAudioUnitProperty_OfflineRender:
        offline = value != 0;
        return noErr;
      case converter::kConverterProperty_Metering:
        metering = value != 0;
        return noErr;
      default:
        return kAudioUnitErr_InvalidProperty;
    }
  }

  int resets = 0;
  bool offline = false;
  bool metering = true;
  /// The first samples since the last reset, first channel.
  std::vector<float> before;
  /// The output while it was metered, first channel.
  std::vector<float> metered;

 private:
  UInt32 latency_;
  std::vector<std::vector<float>> lines_;
  std::size_t at_ = 0;
};

#pragma once

#include <cstddef>
#include <cstring>
#include <vector>

#include "converter/ConverterUnit.h"

/// A converter that only delays, so that what comes out tells what went in and when.
class DelayingUnit : public converter::ConverterUnit {
 public:
  DelayingUnit(UInt32 channels, UInt32 latency)
      : latency_(latency), lines_(channels, std::vector<float>(latency)) {}

  UInt32 latency() const override { return latency_; }
  void render(const float* const* input, float* const* output, UInt32 frames) noexcept override {
    for (std::size_t channel = 0; channel < lines_.size(); ++channel) {
      auto at = at_;
      for (UInt32 i = 0; i < frames; ++i) {
        const auto sample = input[channel][i];
        output[channel][i] = std::exchange(lines_[channel][at], sample);
        at = (at + 1) % latency_;
      }
    }
    at_ = (at_ + frames) % latency_;
  }
  void reset() override {
    ++resets;
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
    if (id != kAudioUnitProperty_OfflineRender) return kAudioUnitErr_InvalidProperty;
    UInt32 value = 0;
    std::memcpy(&value, data, std::min<std::size_t>(size, sizeof value));
    offline = value != 0;
    return noErr;
  }

  int resets = 0;
  bool offline = false;

 private:
  UInt32 latency_;
  std::vector<std::vector<float>> lines_;
  std::size_t at_ = 0;
};

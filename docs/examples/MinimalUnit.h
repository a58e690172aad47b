#pragma once

#include <array>
#include <atomic>
#include <cstring>

#include "audio_unit/Unit.h"
#include "contract/ConverterInterface.h"

/// The least that a view can be bound to: three parameters, the four custom properties and a stream
/// format. It encodes nothing and measures nothing.
class MinimalUnit final : public audio_unit::Unit {
 public:
  // Parameters: on any thread, several at once.

  OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element,
                        AudioUnitParameterValue& value) override {
    if (scope != kAudioUnitScope_Global) return kAudioUnitErr_InvalidScope;
    if (element != 0) return kAudioUnitErr_InvalidElement;
    if (id >= parameters_.size()) return kAudioUnitErr_InvalidParameter;
    value = parameters_[id];
    return noErr;
  }

  OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element,
                        AudioUnitParameterValue value, UInt32 /*bufferOffset*/) override {
    if (scope != kAudioUnitScope_Global) return kAudioUnitErr_InvalidScope;
    if (element != 0) return kAudioUnitErr_InvalidElement;
    if (id >= parameters_.size()) return kAudioUnitErr_InvalidParameter;
    parameters_[id] = value;
    // What the third parameter means follows from the other two.
    if (id != velk::kConverterParam_RateQuality) {
      announceParameter(velk::kConverterParam_RateQuality);
    }
    return noErr;
  }

  // Properties: on the main thread, because that is where the views are and nobody else asks here.

  OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       void* data, UInt32& size) override {
    if (element != 0) return kAudioUnitErr_InvalidElement;
    if (id == kAudioUnitProperty_StreamFormat) {
      return scope == kAudioUnitScope_Output ? give(streamFormat(), data, size)
                                             : kAudioUnitErr_InvalidScope;
    }
    if (scope != kAudioUnitScope_Global) return kAudioUnitErr_InvalidScope;
    switch (id) {
      case velk::kConverterProperty_MonitorSource:
        return give(monitorSource_, data, size);
      case velk::kConverterProperty_ListeningTestActive:
        return give(testActive_, data, size);
      case velk::kConverterProperty_PeakStats:
        return give(statistics_, data, size);
      default:
        return kAudioUnitErr_InvalidProperty;
    }
  }

  OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       const void* data, UInt32 size) override {
    if (scope != kAudioUnitScope_Global) return kAudioUnitErr_InvalidScope;
    if (element != 0) return kAudioUnitErr_InvalidElement;
    UInt32 value = 0;
    if (size != sizeof value) return kAudioUnitErr_InvalidPropertyValue;
    std::memcpy(&value, data, sizeof value);
    switch (id) {
      case velk::kConverterProperty_MonitorSource:
        monitorSource_ = value;
        break;
      case velk::kConverterProperty_ListeningTestActive:
        testActive_ = value;
        break;
      case velk::kConverterProperty_ResetPeakStats:
        statistics_ = {};
        break;
      default:
        return kAudioUnitErr_InvalidProperty;
    }
    announceProperty(id);
    return noErr;
  }

 private:
  static AudioStreamBasicDescription streamFormat() {
    AudioStreamBasicDescription format{};
    format.mSampleRate = 48000;
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsNonInterleaved;
    format.mFramesPerPacket = 1;
    format.mBytesPerFrame = format.mBytesPerPacket = sizeof(Float32);
    format.mChannelsPerFrame = 2;
    format.mBitsPerChannel = 32;
    return format;
  }

  template <class Value>
  static OSStatus give(const Value& value, void* data, UInt32& size) {
    if (size < sizeof value) return kAudioUnitErr_InvalidPropertyValue;
    std::memcpy(data, &value, sizeof value);
    size = sizeof value;
    return noErr;
  }

  std::array<std::atomic<float>, 3> parameters_ = {velk::kFormat_AAC, velk::kStrategy_VBRC, 14.0F};
  UInt32 monitorSource_ = 0;
  UInt32 testActive_ = 0;
  velk::PeakStatistics statistics_{};
};

#pragma once

#include <cstring>

#include "audio_unit/Unit.h"
#include "contract/ConverterInterface.h"

/// The least that a view can be bound to: three parameters, the four custom properties and a stream
/// format. It encodes nothing.
class GainUnit final : public audio_unit::Unit {
 public:
  OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue& value) override {
    if (id >= 3) return kAudioUnitErr_InvalidParameter;
    value = parameters_[id];
    return noErr;
  }

  OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue value, UInt32) override {
    if (id >= 3) return kAudioUnitErr_InvalidParameter;
    parameters_[id] = value;
    // The third parameter's meaning follows from the other two.
    if (id != velk::kConverterParam_RateQuality) {
      announceParameter(velk::kConverterParam_RateQuality);
    }
    return noErr;
  }

  OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope, AudioUnitElement, void* data,
                       UInt32& size) override {
    switch (id) {
      case velk::kConverterProperty_MonitorSource:
        return give(monitorSource_, data, size);
      case velk::kConverterProperty_ListeningTestActive:
        return give(testActive_, data, size);
      case velk::kConverterProperty_PeakStats:
        return give(statistics_, data, size);
      case kAudioUnitProperty_StreamFormat: {
        AudioStreamBasicDescription format{};
        format.mSampleRate = 48000;
        format.mFormatID = kAudioFormatLinearPCM;
        format.mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsNonInterleaved;
        format.mChannelsPerFrame = 2;
        format.mBitsPerChannel = 32;
        return give(format, data, size);
      }
      default:
        return kAudioUnitErr_InvalidProperty;
    }
  }

  OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope, AudioUnitElement, const void* data,
                       UInt32 size) override {
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
  template <class Value>
  static OSStatus give(const Value& value, void* data, UInt32& size) {
    if (size < sizeof value) return kAudioUnitErr_InvalidPropertyValue;
    std::memcpy(data, &value, sizeof value);
    size = sizeof value;
    return noErr;
  }

  float parameters_[3] = {velk::kFormat_AAC, velk::kStrategy_VBRC, 14};
  UInt32 monitorSource_ = 0;
  UInt32 testActive_ = 0;
  velk::PeakStatistics statistics_{};
};

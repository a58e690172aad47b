#include "converter/unit/AacConverter.h"

#include <cstring>

#include "contract/ConverterInterface.h"
#include "converter/codec/CodecRate.h"
#include "converter/unit/ParameterInfo.h"
#include "converter/unit/Presets.h"
#include "converter/unit/PropertyTable.h"

namespace converter {
namespace {

OSStatus checkParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element) {
  if (!Parameters::has(id)) return kAudioUnitErr_InvalidParameter;
  if (scope != kAudioUnitScope_Global) return kAudioUnitErr_InvalidScope;
  return element == 0 ? OSStatus{noErr} : kAudioUnitErr_InvalidElement;
}

AudioStreamBasicDescription streamFormat(const UnitFormat& format) {
  AudioStreamBasicDescription stream{};
  stream.mSampleRate = format.sampleRate;
  stream.mFormatID = kAudioFormatLinearPCM;
  stream.mFormatFlags =
      kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved;
  stream.mBytesPerPacket = sizeof(float);
  stream.mFramesPerPacket = 1;
  stream.mBytesPerFrame = sizeof(float);
  stream.mChannelsPerFrame = format.channels;
  stream.mBitsPerChannel = 8 * sizeof(float);
  return stream;
}

template <typename Value>
void put(void* data, const Value& value) {
  std::memcpy(data, &value, sizeof(Value));
}

template <typename Value>
Value take(const void* data) {
  Value value{};
  std::memcpy(&value, data, sizeof(Value));
  return value;
}

}  // namespace

AacConverter::AacConverter(const UnitFormat& format, const OpenEncoder& open)
    : format_(format),
      parameters_(codecFormat(format), presetValues(kDefaultPreset).value_or(ParameterValues{}),
                  controls_.setting),
      renderer_(format, controls_, open) {}

OSStatus AacConverter::getParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                    AudioUnitElement element, AudioUnitParameterValue& value) {
  const OSStatus error = checkParameter(id, scope, element);
  if (error == noErr) value = parameters_.value(id);
  return error;
}

OSStatus AacConverter::setParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                    AudioUnitElement element, AudioUnitParameterValue value,
                                    UInt32 /*bufferOffsetInFrames*/) {
  const OSStatus error = checkParameter(id, scope, element);
  if (error != noErr) return error;
  parameters_.setValue(id, value);
  // The format bounds the rate, and the strategy says whether the third parameter is one.
  if (id != velk::kConverterParam_RateQuality) {
    announceParameter(velk::kConverterParam_RateQuality);
  }
  return noErr;
}

OSStatus AacConverter::getProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                                   AudioUnitElement element, void* data, UInt32& size) {
  const OSStatus error = checkRead(id, scope, element, data, size);
  if (error != noErr) return error;
  readProperty(id, element, data);
  size = propertySize(id);
  return noErr;
}

void AacConverter::readProperty(AudioUnitPropertyID id, AudioUnitElement element, void* data) {
  switch (id) {
    case kAudioUnitProperty_ParameterInfo:
      return put(data, parameterInfo(element, parameters_.highestFormat()));
    case kAudioUnitProperty_StreamFormat:
      return put(data, streamFormat(format_));
    case kAudioUnitProperty_Latency:
      return put(data, Float64{latency() / format_.sampleRate});
    case kAudioUnitProperty_MaximumFramesPerSlice:
      return put(data, format_.maximumFrames);
    case kAudioUnitProperty_FactoryPresets:
      return put<const void*>(data, copyFactoryPresets());
    case kAudioUnitProperty_PresentPreset:
      return put(data, copyPresentPreset(parameters_.values()));
    case kAudioUnitProperty_OfflineRender:
      return put(data, offlineRender_);
    case velk::kConverterProperty_MonitorSource:
      return put(data, monitorSource_);
    case velk::kConverterProperty_PeakStats:
      return put(data, renderer_.peakStatistics());
    case velk::kConverterProperty_ListeningTestActive:
      return put(data, listeningTestActive_);
    case kConverterProperty_EffectiveSetting:
      return put(data, effectiveSetting(renderer_.codec().carrying(parameters_.setting())));
    case kConverterProperty_BitRate:
      return put(data, renderer_.codec().bitRate());
    case kConverterProperty_MissedFrames:
      return put(data, controls_.missedFrames.load(std::memory_order_relaxed));
    case kConverterProperty_CodecFailures:
      return put(data, renderer_.codec().failures());
    case kConverterProperty_Metering:
      return put(data, metering_);
    default:
      return;
  }
}

OSStatus AacConverter::setProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                                   AudioUnitElement element, const void* data, UInt32 size) {
  const OSStatus error = checkWrite(id, scope, element, data, size);
  if (error != noErr) return error;
  switch (id) {
    case kAudioUnitProperty_PresentPreset:
      return applyPreset(take<AUPreset>(data));
    case kAudioUnitProperty_OfflineRender:
      offlineRender_ = take<UInt32>(data);
      controls_.offline.store(offlineRender_ != 0, std::memory_order_relaxed);
      renderer_.setUrgent(offlineRender_ == 0);
      break;
    case velk::kConverterProperty_MonitorSource:
      monitorSource_ = take<UInt32>(data);
      controls_.monitorSource.store(monitorSource_ != 0, std::memory_order_relaxed);
      break;
    case velk::kConverterProperty_ResetPeakStats:
      renderer_.resetPeakStatistics();
      break;
    case velk::kConverterProperty_ListeningTestActive:
      listeningTestActive_ = take<UInt32>(data);
      break;
    case kConverterProperty_Metering:
      metering_ = take<UInt32>(data);
      controls_.metering.store(metering_ != 0, std::memory_order_relaxed);
      break;
    default:
      break;
  }
  announceProperty(id);
  return noErr;
}

OSStatus AacConverter::applyPreset(const AUPreset& preset) {
  const auto values = presetValues(preset.presetNumber);
  if (!values) return kAudioUnitErr_InvalidPropertyValue;
  parameters_.setValues(*values);
  announceParameter(velk::kConverterParam_Format);
  announceParameter(velk::kConverterParam_Strategy);
  announceParameter(velk::kConverterParam_RateQuality);
  announceProperty(kAudioUnitProperty_PresentPreset);
  return noErr;
}

}  // namespace converter

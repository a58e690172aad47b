#include "converter/unit/AacConverter.h"

#include <array>
#include <utility>

#include "contract/ConverterInterface.h"
#include "converter/codec/CodecRate.h"
#include "converter/unit/ParameterInfo.h"
#include "converter/unit/Presets.h"

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

}  // namespace

AacConverter::AacConverter(const UnitFormat& format, const OpenEncoder& open,
                           realtime::ReadClock readClock)
    : format_(format),
      parameters_(codecFormat(format), kDefaultSetting, controls_.setting),
      renderer_(format, controls_, open, std::move(readClock)) {}

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

std::span<const PropertyDeclaration> AacConverter::properties() {
  using Unit = AacConverter;
  using Declare = PropertyDeclaration;
  using Element = AudioUnitElement;
  static constexpr std::array declarations = {
      Declare::readable(audio_unit::parameterInfoProperty, kOfEachParameter,
                        [](Unit& unit, Element parameter) {
                          return parameterInfo(parameter, unit.parameters_.highestFormat());
                        }),
      Declare::readable(audio_unit::outputFormatProperty, kOfTheStreams,
                        [](Unit& unit, Element) { return streamFormat(unit.format_); }),
      Declare::readable(
          audio_unit::latencyProperty, kOfTheUnit,
          [](Unit& unit, Element) { return Float64{unit.latency() / unit.format_.sampleRate}; }),
      Declare::readable(audio_unit::maximumFramesProperty, kOfTheUnit,
                        [](Unit& unit, Element) { return unit.format_.maximumFrames; }),
      Declare::readable(audio_unit::factoryPresetsProperty, kOfTheUnit,
                        [](Unit&, Element) { return copyFactoryPresets(); }),
      Declare::writable(
          audio_unit::presentPresetProperty,
          [](Unit& unit, Element) { return copyPresentPreset(unit.parameters_.values()); },
          [](Unit& unit, const AUPreset& preset) { return unit.applyPreset(preset); }),
      Declare::writable(
          audio_unit::offlineRenderProperty,
          [](Unit& unit, Element) { return unit.offlineRender_; },
          [](Unit& unit, UInt32 value) {
            unit.offlineRender_ = value;
            unit.controls_.offline.store(value != 0, std::memory_order_relaxed);
            unit.renderer_.setUrgent(value == 0);
            return OSStatus{noErr};
          }),
      Declare::writable(
          velk::kConverterProperty_MonitorSource,
          [](Unit& unit, Element) { return unit.monitorSource_; },
          [](Unit& unit, UInt32 value) {
            unit.monitorSource_ = value;
            unit.controls_.monitorSource.store(value != 0, std::memory_order_relaxed);
            return OSStatus{noErr};
          }),
      Declare::readable(velk::kConverterProperty_PeakStats, kOfTheUnit,
                        [](Unit& unit, Element) { return unit.renderer_.peakStatistics(); }),
      Declare::request(velk::kConverterProperty_ResetPeakStats,
                       [](Unit& unit, UInt32) {
                         unit.renderer_.resetPeakStatistics();
                         return OSStatus{noErr};
                       }),
      Declare::writable(
          velk::kConverterProperty_ListeningTestActive,
          [](Unit& unit, Element) { return unit.listeningTestActive_; },
          [](Unit& unit, UInt32 value) {
            unit.listeningTestActive_ = value;
            unit.controls_.listeningTest.store(value != 0, std::memory_order_relaxed);
            return OSStatus{noErr};
          }),
      Declare::readable(kConverterProperty_EffectiveSetting, kOfTheUnit,
                        [](Unit& unit, Element) {
                          return effectiveSetting(
                              unit.renderer_.codec().carrying(unit.parameters_.setting()));
                        }),
      Declare::readable(kConverterProperty_BitRate, kOfTheUnit,
                        [](Unit& unit, Element) { return unit.renderer_.codec().bitRate(); }),
      Declare::readable(kConverterProperty_MissedFrames, kOfTheUnit,
                        [](Unit& unit, Element) {
                          return unit.controls_.missedFrames.load(std::memory_order_relaxed);
                        }),
      Declare::readable(kConverterProperty_CodecFailures, kOfTheUnit,
                        [](Unit& unit, Element) { return unit.renderer_.codec().failures(); }),
      Declare::writable(
          kConverterProperty_Metering, [](Unit& unit, Element) { return unit.metering_; },
          [](Unit& unit, UInt32 value) {
            unit.metering_ = value;
            unit.controls_.metering.store(value != 0, std::memory_order_relaxed);
            return OSStatus{noErr};
          }),
  };
  return declarations;
}

OSStatus AacConverter::getProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                                   AudioUnitElement element, void* data, UInt32& size) {
  const PropertyDeclaration* property = find(properties(), id);
  return property != nullptr ? property->read(*this, scope, element, data, size)
                             : kAudioUnitErr_InvalidProperty;
}

OSStatus AacConverter::setProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                                   AudioUnitElement element, const void* data, UInt32 size) {
  const PropertyDeclaration* property = find(properties(), id);
  if (property == nullptr) return kAudioUnitErr_InvalidProperty;
  const OSStatus status = property->write(*this, scope, element, data, size);
  if (status == noErr) announceProperty(id);
  return status;
}

OSStatus AacConverter::applyPreset(const AUPreset& preset) {
  const auto setting = presetSetting(preset.presetNumber);
  if (!setting) return kAudioUnitErr_InvalidPropertyValue;
  parameters_.setValues(*setting);
  announceParameter(velk::kConverterParam_Format);
  announceParameter(velk::kConverterParam_Strategy);
  announceParameter(velk::kConverterParam_RateQuality);
  return noErr;
}

}  // namespace converter

#include "view/fakes/FakeConverter.h"

#include <cstddef>
#include <cstring>

#include "audio_unit/AUEventListener.h"
#include "audio_unit/AudioUnitProperties.h"

namespace fakes {

namespace {

template <class Value>
OSStatus give(const Value& value, void* data, UInt32& size) {
  if (size < sizeof(Value)) {
    return kAudioUnitErr_InvalidPropertyValue;
  }
  std::memcpy(data, &value, sizeof(Value));
  size = sizeof(Value);
  return noErr;
}

}  // namespace

FakeConverter::FakeConverter(CallLog& log)
    : log_(log), presetName_(CFStringCreateWithUTF8("A preset")) {
  statistics.fill({-60.0F, -60.0F, 0, 0});
  for (const auto& preset : velk::encoderPresets) presets.emplace_back(preset.setting);
}

FakeConverter::~FakeConverter() {
  CFRelease(presetName_);
}

void FakeConverter::setSetting(const Setting& setting) {
  parameters = {setting.format, setting.strategy, setting.rateOrQuality};
}

FakeConverter::Setting FakeConverter::setting() const {
  return {parameters[0], parameters[1], parameters[2]};
}

void FakeConverter::failOnce(UnitCall call, UInt32 id, OSStatus status) {
  failures_[{call, id}] = {status, false};
}

void FakeConverter::failAlways(UnitCall call, UInt32 id, OSStatus status) {
  failures_[{call, id}] = {status, true};
}

void FakeConverter::heal() {
  failures_.clear();
}

OSStatus FakeConverter::failureFor(UnitCall call, UInt32 id) {
  const auto found = failures_.find({call, id});
  if (found == failures_.end()) {
    return noErr;
  }
  const OSStatus status = found->second.status;
  if (!found->second.always) {
    failures_.erase(found);
  }
  return status;
}

template <class Work>
void FakeConverter::asHost(Work work) {
  fromHost_ = true;
  work();
  fromHost_ = false;
}

void FakeConverter::hostSetsParameter(AudioUnitParameterID id, float value) {
  asHost([&] {
    const AudioUnitParameter parameter = {this, id, kAudioUnitScope_Global, 0};
    AUParameterSet(nullptr, nullptr, &parameter, value, 0);
  });
}

void FakeConverter::hostSetsSetting(const Setting& setting) {
  hostSetsParameter(velk::kConverterParam_Format, setting.format);
  hostSetsParameter(velk::kConverterParam_Strategy, setting.strategy);
  hostSetsParameter(velk::kConverterParam_RateQuality, setting.rateOrQuality);
}

void FakeConverter::hostSetsProperty(AudioUnitPropertyID id, UInt32 value) {
  asHost([&] { AudioUnitSetProperty(this, id, kAudioUnitScope_Global, 0, &value, sizeof(value)); });
}

void FakeConverter::hostSetsPreset(std::size_t index) {
  asHost([&] {
    const AUPreset preset = {static_cast<SInt32>(index), presetName_};
    AudioUnitSetProperty(this, kAudioUnitProperty_PresentPreset, kAudioUnitScope_Global, 0, &preset,
                         sizeof(preset));
  });
}

void FakeConverter::hostMakesGesture(AudioUnitParameterID id) {
  for (const AudioUnitEventType type :
       {kAudioUnitEvent_BeginParameterChangeGesture, kAudioUnitEvent_EndParameterChangeGesture}) {
    AudioUnitEvent event{};
    event.mEventType = type;
    event.mArgument.mParameter = {this, id, kAudioUnitScope_Global, 0};
    AUEventListenerNotify(nullptr, nullptr, &event);
  }
}

void FakeConverter::announce(AudioUnitParameterID id) {
  announcing_ = true;
  announceParameter(id);
  announcing_ = false;
}

OSStatus FakeConverter::getParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                     AudioUnitElement element, AudioUnitParameterValue& value) {
  if (!announcing_) {
    log_.add(caller(), ".getParameter ", id);
    if (const OSStatus status = failureFor(UnitCall::GetParameter, id)) {
      return status;
    }
  }
  if (scope != kAudioUnitScope_Global || element != 0) {
    return kAudioUnitErr_InvalidScope;
  }
  if (id >= parameters.size()) {
    return kAudioUnitErr_InvalidParameter;
  }
  value = parameters[id];
  return noErr;
}

OSStatus FakeConverter::setParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                     AudioUnitElement element, AudioUnitParameterValue value,
                                     UInt32 bufferOffsetInFrames) {
  log_.add(caller(), ".setParameter ", id, " = ", value);
  if (const OSStatus status = failureFor(UnitCall::SetParameter, id)) {
    return status;
  }
  if (scope != kAudioUnitScope_Global || element != 0 || bufferOffsetInFrames != 0) {
    return kAudioUnitErr_InvalidScope;
  }
  if (id >= parameters.size()) {
    return kAudioUnitErr_InvalidParameter;
  }
  parameters[id] = value;
  if (id != velk::kConverterParam_RateQuality) {
    announce(velk::kConverterParam_RateQuality);
  }
  return noErr;
}

OSStatus FakeConverter::getProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                                    AudioUnitElement element, void* data, UInt32& size) {
  log_.add(caller(), ".getProperty ", id, " scope ", scope, " element ", element, " size ", size);
  if (const OSStatus status = failureFor(UnitCall::GetProperty, id)) {
    return status;
  }
  const AudioUnitScope expected =
      id == kAudioUnitProperty_StreamFormat ? kAudioUnitScope_Output : kAudioUnitScope_Global;
  if (scope != expected) {
    return kAudioUnitErr_InvalidScope;
  }
  if (element != 0) {
    return kAudioUnitErr_InvalidElement;
  }
  switch (id) {
    case velk::kConverterProperty_MonitorSource:
      return give(monitorSource, data, size);
    case velk::kConverterProperty_ListeningTestActive:
      return give(listeningTestActive, data, size);
    case velk::kConverterProperty_PeakStats:
      return give(statistics, data, size);
    case kAudioUnitProperty_StreamFormat: {
      AudioStreamBasicDescription format{};
      format.mSampleRate = 48000;
      format.mFormatID = kAudioFormatLinearPCM;
      format.mChannelsPerFrame = channels;
      return give(format, data, size);
    }
    case kAudioUnitProperty_ParameterInfo: {
      AudioUnitParameterInfo info{};
      info.unit = kAudioUnitParameterUnit_Indexed;
      info.maxValue = maximumFormat;
      return give(info, data, size);
    }
    case kAudioUnitProperty_FactoryPresets:
      if (size < sizeof(CFArrayRef)) {
        return kAudioUnitErr_InvalidPropertyValue;
      }
      return makePresetList(data);
    default:
      return kAudioUnitErr_InvalidProperty;
  }
}

OSStatus FakeConverter::setProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                                    AudioUnitElement element, const void* data, UInt32 size) {
  AUPreset preset{};
  UInt32 value = 0;
  if (id == kAudioUnitProperty_PresentPreset && size == sizeof(preset)) {
    std::memcpy(&preset, data, sizeof(preset));
    log_.add(caller(), ".setProperty ", id, " = preset ", preset.presetNumber);
  } else if (size == sizeof(value)) {
    std::memcpy(&value, data, sizeof(value));
    log_.add(caller(), ".setProperty ", id, " = ", value);
  } else {
    log_.add(caller(), ".setProperty ", id, " of size ", size);
    return kAudioUnitErr_InvalidPropertyValue;
  }
  if (const OSStatus status = failureFor(UnitCall::SetProperty, id)) {
    return status;
  }
  if (scope != kAudioUnitScope_Global || element != 0) {
    return kAudioUnitErr_InvalidScope;
  }
  switch (id) {
    case velk::kConverterProperty_MonitorSource:
      monitorSource = value;
      break;
    case velk::kConverterProperty_ListeningTestActive:
      listeningTestActive = value;
      break;
    case velk::kConverterProperty_ResetPeakStats:
      statistics.fill({-60.0F, -60.0F, 0, 0});
      break;
    case kAudioUnitProperty_PresentPreset:
      return applyPreset(preset.presetNumber);
    default:
      return kAudioUnitErr_InvalidProperty;
  }
  announceProperty(id);
  return noErr;
}

OSStatus FakeConverter::makePresetList(void* data) {
  CFArrayRef list = nullptr;
  if (givesPresetList) {
    presetRecords_.assign(presets.size(), {});
    std::vector<const void*> pointers;
    for (std::size_t index = 0; index < presets.size(); ++index) {
      presetRecords_[index] = {static_cast<SInt32>(index), presetName_};
      pointers.push_back(presets[index] ? &presetRecords_[index] : nullptr);
    }
    list = CFArrayCreateWithPointers(pointers.data(), static_cast<CFIndex>(pointers.size()));
  }
  std::memcpy(data, &list, sizeof(CFArrayRef));
  return noErr;
}

OSStatus FakeConverter::applyPreset(SInt32 number) {
  const auto index = static_cast<std::size_t>(number);
  if (number < 0 || index >= presets.size() || !presets[index]) {
    return kAudioUnitErr_InvalidPropertyValue;
  }
  setSetting(*presets[index]);
  for (UInt32 id = 0; id < parameters.size(); ++id) {
    announce(id);
  }
  return noErr;
}

}  // namespace fakes

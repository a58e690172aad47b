#include "converter/unit/PropertyTable.h"

#include <algorithm>
#include <array>

#include "contract/ConverterInterface.h"

namespace converter {
namespace {

enum class Scopes { global, inputAndOutput };
enum class Access { read, write, readWrite };

struct Property {
  AudioUnitPropertyID id;
  UInt32 size;
  Access access;
  Scopes scopes = Scopes::global;
  UInt32 elements = 1;
};

constexpr std::array kProperties = {
    Property{kAudioUnitProperty_ParameterInfo, sizeof(AudioUnitParameterInfo), Access::read,
             Scopes::global, 3},
    Property{kAudioUnitProperty_StreamFormat, sizeof(AudioStreamBasicDescription), Access::read,
             Scopes::inputAndOutput},
    Property{kAudioUnitProperty_Latency, sizeof(Float64), Access::read},
    Property{kAudioUnitProperty_MaximumFramesPerSlice, sizeof(UInt32), Access::read},
    Property{kAudioUnitProperty_FactoryPresets, sizeof(CFArrayRef), Access::read},
    Property{kAudioUnitProperty_PresentPreset, sizeof(AUPreset), Access::readWrite},
    Property{kAudioUnitProperty_OfflineRender, sizeof(UInt32), Access::readWrite},
    Property{velk::kConverterProperty_MonitorSource, sizeof(UInt32), Access::readWrite},
    Property{velk::kConverterProperty_PeakStats, sizeof(velk::PeakStatistics), Access::read},
    Property{velk::kConverterProperty_ResetPeakStats, sizeof(UInt32), Access::write},
    Property{velk::kConverterProperty_ListeningTestActive, sizeof(UInt32), Access::readWrite},
    Property{kConverterProperty_EffectiveSetting, sizeof(EffectiveSetting), Access::read},
    Property{kConverterProperty_BitRate, sizeof(BitRate), Access::read},
    Property{kConverterProperty_MissedFrames, sizeof(UInt64), Access::read},
    Property{kConverterProperty_CodecFailures, sizeof(UInt64), Access::read},
    Property{kConverterProperty_Metering, sizeof(UInt32), Access::readWrite},
};

const Property* find(AudioUnitPropertyID id) {
  const auto* found = std::ranges::find(kProperties, id, &Property::id);
  return found == kProperties.end() ? nullptr : found;
}

/// The errors that reading and writing share.
OSStatus checkPlace(const Property* property, AudioUnitScope scope, AudioUnitElement element) {
  if (property == nullptr) return kAudioUnitErr_InvalidProperty;
  const bool inScope = property->scopes == Scopes::global
                           ? scope == kAudioUnitScope_Global
                           : scope == kAudioUnitScope_Input || scope == kAudioUnitScope_Output;
  if (!inScope) return kAudioUnitErr_InvalidScope;
  if (element >= property->elements) return kAudioUnitErr_InvalidElement;
  return noErr;
}

}  // namespace

OSStatus checkRead(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                   const void* data, UInt32 size) {
  const Property* property = find(id);
  if (const OSStatus error = checkPlace(property, scope, element); error != noErr) return error;
  if (property->access == Access::write) return kAudioUnitErr_InvalidProperty;
  return data != nullptr && size >= property->size ? OSStatus{noErr}
                                                   : kAudioUnitErr_InvalidPropertyValue;
}

OSStatus checkWrite(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                    const void* data, UInt32 size) {
  const Property* property = find(id);
  if (const OSStatus error = checkPlace(property, scope, element); error != noErr) return error;
  if (property->access == Access::read) return kAudioUnitErr_PropertyNotWritable;
  return data != nullptr && size == property->size ? OSStatus{noErr}
                                                   : kAudioUnitErr_InvalidPropertyValue;
}

UInt32 propertySize(AudioUnitPropertyID id) {
  const Property* property = find(id);
  return property == nullptr ? 0 : property->size;
}

}  // namespace converter

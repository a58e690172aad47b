#include "converter/unit/ParameterInfo.h"

#include <algorithm>
#include <string_view>

#include "contract/ConverterExtensions.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/Presets.h"

namespace converter {
namespace {

AudioUnitParameterInfo makeInfo(std::string_view name, AudioUnitParameterUnit unit, float highest,
                                float initial) {
  AudioUnitParameterInfo info{};
  std::ranges::copy(name, info.name);
  info.unit = unit;
  info.minValue = 0;
  info.maxValue = highest;
  info.defaultValue = initial;
  info.flags = kAudioUnitParameterFlag_IsReadable | kAudioUnitParameterFlag_IsWritable;
  return info;
}

}  // namespace

AudioUnitParameterInfo parameterInfo(AudioUnitParameterID id, Format highest) {
  switch (id) {
    case velk::kConverterParam_Format:
      return makeInfo("Format", kAudioUnitParameterUnit_Indexed, static_cast<float>(highest),
                      kDefaultSetting.format);
    case velk::kConverterParam_Strategy:
      return makeInfo("Strategy", kAudioUnitParameterUnit_Indexed, velk::kStrategy_VBR,
                      kDefaultSetting.strategy);
    default:
      // The highest quality is above the highest rate index.
      return makeInfo("Rate or Quality", kAudioUnitParameterUnit_Generic, float{kHighestQuality},
                      kDefaultSetting.rateOrQuality);
  }
}

}  // namespace converter

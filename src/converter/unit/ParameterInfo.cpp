#include "converter/unit/ParameterInfo.h"

#include <algorithm>
#include <string_view>

#include "contract/ConverterInterface.h"
#include "converter/unit/Presets.h"

namespace converter {
namespace {

/// Of the rate-or-quality parameter: the highest quality, which is above the highest rate index.
constexpr float kHighestQuality = 127;

AudioUnitParameterInfo makeInfo(std::string_view name, AudioUnitParameterUnit unit, float highest,
                                float standard) {
  AudioUnitParameterInfo info{};
  std::ranges::copy(name, info.name);
  info.unit = unit;
  info.minValue = 0;
  info.maxValue = highest;
  info.defaultValue = standard;
  info.flags = kAudioUnitParameterFlag_IsReadable | kAudioUnitParameterFlag_IsWritable;
  return info;
}

}  // namespace

AudioUnitParameterInfo parameterInfo(AudioUnitParameterID id, Format highest) {
  const ParameterValues standard = presetValues(kDefaultPreset).value_or(ParameterValues{});
  switch (id) {
    case velk::kConverterParam_Format:
      return makeInfo("Format", kAudioUnitParameterUnit_Indexed, static_cast<float>(highest),
                      standard.format);
    case velk::kConverterParam_Strategy:
      return makeInfo("Strategy", kAudioUnitParameterUnit_Indexed, velk::kStrategy_VBR,
                      standard.strategy);
    default:
      return makeInfo("Rate or Quality", kAudioUnitParameterUnit_Generic, kHighestQuality,
                      standard.rateOrQuality);
  }
}

}  // namespace converter

#include "converter/unit/Presets.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace converter {
namespace {

using Records = std::array<AUPreset, velk::encoderPresets.size()>;

/// Hosts keep the records and their names for as long as they like, so they live as long as the
/// process.
const Records& records() {
  static const auto made = [] {
    Records presets{};
    std::ranges::transform(velk::encoderPresets, presets.begin(), [](const auto& preset) {
      return AUPreset{static_cast<SInt32>(preset.number), CFStringCreateWithUTF8(preset.name)};
    });
    return presets;
  }();
  return made;
}

}  // namespace

std::optional<velk::EncoderSetting> presetSetting(SInt32 number) {
  const auto index = static_cast<std::size_t>(number);
  if (number < 0 || index >= velk::encoderPresets.size()) return std::nullopt;
  return velk::encoderPresets[index].setting;
}

CFArrayRef copyFactoryPresets() {
  std::array<const void*, velk::encoderPresets.size()> pointers{};
  std::ranges::transform(records(), pointers.begin(),
                         [](const AUPreset& preset) { return &preset; });
  return CFArrayCreateWithPointers(pointers.data(), static_cast<CFIndex>(pointers.size()));
}

AUPreset copyPresentPreset(const velk::EncoderSetting& setting) {
  const auto* const preset =
      std::ranges::find(velk::encoderPresets, setting, &velk::EncoderPreset::setting);
  if (preset == velk::encoderPresets.end()) return {-1, CFStringCreateWithUTF8("Custom")};
  const AUPreset& record = records()[preset->number];
  CFRetain(record.presetName);
  return record;
}

}  // namespace converter

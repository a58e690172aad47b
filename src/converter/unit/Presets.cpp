#include "converter/unit/Presets.h"

#include <array>

#include "contract/ConverterInterface.h"

namespace converter {
namespace {

struct Preset {
  const char* name;
  ParameterValues values;
};

constexpr std::array<Preset, kPresetCount> kPresets = {{
    {"Ondara Plus", {velk::kFormat_AAC, velk::kStrategy_VBRC, 14}},
    {"128K AAC", {velk::kFormat_AAC, velk::kStrategy_VBRC, 10}},
    {"Streaming", {velk::kFormat_HE, velk::kStrategy_ABR, 7}},
    {"High Quality", {velk::kFormat_HE, velk::kStrategy_VBRC, 16}},
}};

/// Hosts keep the records and their names for as long as they like, so they live as long as the
/// process.
const std::array<AUPreset, kPresetCount>& records() {
  static const auto made = [] {
    std::array<AUPreset, kPresetCount> presets{};
    for (std::size_t i = 0; i < kPresetCount; ++i) {
      presets[i] = {static_cast<SInt32>(i), CFStringCreateWithUTF8(kPresets[i].name)};
    }
    return presets;
  }();
  return made;
}

}  // namespace

std::optional<ParameterValues> presetValues(SInt32 number) {
  if (number < 0 || static_cast<std::size_t>(number) >= kPresetCount) return std::nullopt;
  return kPresets[static_cast<std::size_t>(number)].values;
}

CFArrayRef copyFactoryPresets() {
  std::array<const void*, kPresetCount> pointers{};
  for (std::size_t i = 0; i < kPresetCount; ++i) pointers[i] = &records()[i];
  return CFArrayCreateWithPointers(pointers.data(), static_cast<CFIndex>(pointers.size()));
}

AUPreset copyPresentPreset(const ParameterValues& values) {
  for (std::size_t i = 0; i < kPresetCount; ++i) {
    if (kPresets[i].values == values) {
      CFRetain(records()[i].presetName);
      return records()[i];
    }
  }
  return {-1, CFStringCreateWithUTF8("Custom")};
}

}  // namespace converter

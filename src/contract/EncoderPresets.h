#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "contract/EncoderSetting.h"

namespace velk {

/// One of the settings that a converter unit has as factory presets.
struct EncoderPreset {
  /// Its number, which is also its index in the unit's list.
  std::uint32_t number;
  /// What the unit calls it.
  const char* name;
  /// What it is called on a command line.
  std::string_view word;
  EncoderSetting setting;
};

inline constexpr EncoderPreset kPreset_OndaraPlus = {
    0, "Ondara Plus", "plus", {kFormat_AAC, kStrategy_VBRC, rateIndexOf(256).value()}};
inline constexpr EncoderPreset kPreset_128KAAC = {
    1, "128K AAC", "128k", {kFormat_AAC, kStrategy_VBRC, rateIndexOf(128).value()}};
inline constexpr EncoderPreset kPreset_Streaming = {
    2, "Streaming", "streaming", {kFormat_HE, kStrategy_ABR, rateIndexOf(64).value()}};
inline constexpr EncoderPreset kPreset_HighQuality = {
    3, "High Quality", "high", {kFormat_HE, kStrategy_VBRC, rateIndexOf(320).value()}};

/// All of them, by number.
inline constexpr std::array encoderPresets = {kPreset_OndaraPlus, kPreset_128KAAC,
                                              kPreset_Streaming, kPreset_HighQuality};
static_assert([] {
  std::size_t index = 0;
  for (const EncoderPreset& preset : encoderPresets) {
    if (preset.number != index++) return false;
  }
  return true;
}());

}  // namespace velk

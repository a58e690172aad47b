#pragma once

#include <optional>

#include "audio_unit/Framework.h"
#include "contract/EncoderPresets.h"

namespace converter {

/// The setting of a new unit.
inline constexpr velk::EncoderSetting kDefaultSetting = velk::kPreset_OndaraPlus.setting;

/// What the preset of that number sets; nothing for a number that no preset has.
std::optional<velk::EncoderSetting> presetSetting(SInt32 number);

/// A new array of the factory presets, in the order of their numbers. The caller releases it; the
/// records stay the unit's.
CFArrayRef copyFactoryPresets();

/// The factory preset with this setting, or number -1, "Custom", when there is none. The caller
/// owns one reference to the name.
AUPreset copyPresentPreset(const velk::EncoderSetting& setting);

}  // namespace converter

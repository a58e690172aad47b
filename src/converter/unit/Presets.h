#pragma once

#include <cstddef>
#include <optional>

#include "audio_unit/Framework.h"
#include "converter/codec/Setting.h"

namespace converter {

inline constexpr std::size_t kPresetCount = 4;
/// Of a new unit.
inline constexpr SInt32 kDefaultPreset = 0;

/// The parameters that the preset of that number sets; nothing for a number that no preset has.
std::optional<ParameterValues> presetValues(SInt32 number);

/// A new array of the factory's presets, in the order of their numbers. The caller releases it; the
/// records stay the unit's.
CFArrayRef copyFactoryPresets();

/// The factory preset that sets these parameters, or number -1, "Custom", when none does. The
/// caller owns one reference to the name.
AUPreset copyPresentPreset(const ParameterValues& values);

}  // namespace converter

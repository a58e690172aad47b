#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "host/unit/EncoderSetting.h"

namespace host::measure {

/// An encoder setting, chosen by itself or as a preset. The unit refuses a format that it cannot do
/// when it is chosen by itself, and carries it by the nearest one when a preset brings it.
struct EncoderChoice {
  /// The preset's number.
  std::optional<std::uint32_t> preset;
  EncoderSetting setting;
};

/// plus, 128k, streaming or high. Throws `UsageError`.
EncoderChoice presetChoice(std::string_view name);
/// "FORMAT,STRATEGY,RATE". Throws `UsageError`.
EncoderChoice settingChoice(std::string_view text);
/// All presets, in order.
std::vector<EncoderChoice> everyPreset();

/// Adds the choice unless its setting is among them: the same setting would only be measured twice.
void addUnlessThere(std::vector<EncoderChoice>& choices, const EncoderChoice& choice);

/// Chooses it on the unit. Throws `Failure` when the unit cannot do it.
void apply(const EncoderChoice& choice, AudioUnit unit);

}  // namespace host::measure

#include "programs/measure/EncoderChoice.h"

#include <algorithm>
#include <string>

#include "converter/unit/Presets.h"

namespace host::measure {
namespace {

EncoderChoice choiceOf(std::uint32_t preset) {
  const auto values = converter::presetValues(static_cast<SInt32>(preset)).value();
  const auto code = [](float value) { return static_cast<std::uint32_t>(value); };
  return {preset, {code(values.format), code(values.strategy), code(values.rateOrQuality)}};
}

}  // namespace

EncoderChoice presetChoice(std::string_view name) {
  return choiceOf(presetIndex(name));
}

EncoderChoice settingChoice(std::string_view text) {
  return {std::nullopt, parsedEncoderSetting(text)};
}

std::vector<EncoderChoice> everyPreset() {
  std::vector<EncoderChoice> choices;
  for (std::uint32_t preset = 0; preset < converter::kPresetCount; ++preset) {
    choices.push_back(choiceOf(preset));
  }
  return choices;
}

void addUnlessThere(std::vector<EncoderChoice>& choices, const EncoderChoice& choice) {
  const auto same = [&](const EncoderChoice& other) { return other.setting == choice.setting; };
  if (std::none_of(choices.begin(), choices.end(), same)) choices.push_back(choice);
}

void apply(const EncoderChoice& choice, AudioUnit unit) {
  if (choice.preset) {
    applyPreset(unit, *choice.preset);
  } else {
    applyEncoderSetting(unit, choice.setting);
  }
}

}  // namespace host::measure

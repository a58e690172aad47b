#include "programs/measure/EncoderChoice.h"

#include <algorithm>

namespace host::measure {
namespace {

EncoderChoice choiceOf(const velk::EncoderPreset& preset) {
  return {preset.number, preset.setting};
}

}  // namespace

EncoderChoice presetChoice(std::string_view name) {
  return choiceOf(presetNamed(name));
}

EncoderChoice settingChoice(std::string_view text) {
  return {std::nullopt, parsedEncoderSetting(text)};
}

std::vector<EncoderChoice> everyPreset() {
  std::vector<EncoderChoice> choices;
  choices.reserve(velk::encoderPresets.size());
  for (const auto& preset : velk::encoderPresets) choices.push_back(choiceOf(preset));
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

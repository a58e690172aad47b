#include "host/unit/EncoderSetting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

#include "audio_unit/FactoryPresets.h"
#include "contract/ConverterExtensions.h"
#include "contract/ConverterInterface.h"
#include "host/messages/Failure.h"

namespace host {
namespace {

using Words = std::array<std::string_view, 3>;

/// By parameter value.
constexpr Words kFormatWords = {"aac", "he", "hev2"};
constexpr Words kStrategyWords = {"abr", "vbrc", "vbr"};

std::optional<float> valueOf(const Words& words, std::string_view word) {
  const auto* const found = std::find(words.begin(), words.end(), word);
  if (found == words.end()) return std::nullopt;
  return static_cast<float>(found - words.begin());
}

template <class Code>
std::string wordOf(const Words& words, std::optional<Code> code) {
  return std::string(code ? words.at(static_cast<std::size_t>(*code)) : velk::kNoName);
}

[[noreturn]] void refuse(std::string_view text, const std::string& why) {
  throw UsageError("bad --set '" + std::string(text) + "': " + why);
}

std::string rateList() {
  std::string list;
  for (const auto rate : velk::bitRates) {
    if (!list.empty()) list += ' ';
    list += std::to_string(rate);
  }
  return list;
}

std::vector<std::string_view> fields(std::string_view text) {
  std::vector<std::string_view> found;
  for (std::size_t begin = 0;;) {
    const auto comma = text.find(',', begin);
    found.push_back(text.substr(begin, comma - begin));
    if (comma == std::string_view::npos) return found;
    begin = comma + 1;
  }
}

void setParameter(AudioUnit unit, AudioUnitParameterID id, float value) {
  const AudioUnitParameter parameter{unit, id, kAudioUnitScope_Global, 0};
  const auto status = AUParameterSet(nullptr, nullptr, &parameter, value, 0);
  if (status != noErr) {
    throw Failure(
        Message::words("the converter refused the encoder setting (status %1); choose another one"),
        {status});
  }
}

float parameter(AudioUnit unit, AudioUnitParameterID id) {
  AudioUnitParameterValue value = 0;
  const auto status = AudioUnitGetParameter(unit, id, kAudioUnitScope_Global, 0, &value);
  if (status != noErr) {
    throw Failure(Message::words("the converter does not tell its encoder setting (status %1)"),
                  {status});
  }
  // A NaN is not above 0 either.
  return value > 0 ? std::trunc(value) : 0.0F;
}

}  // namespace

std::string formatName(float format) {
  const auto code = velk::formatOf(format);
  return code ? nameOf(*code) : velk::kNoName;
}

std::string strategyName(float strategy) {
  const auto code = velk::strategyOf(strategy);
  return code ? nameOf(*code) : velk::kNoName;
}

EncoderSetting parsedEncoderSetting(std::string_view text) {
  const auto parts = fields(text);
  if (parts.size() != 3) refuse(text, "give FORMAT,STRATEGY,RATE such as aac,vbrc,256");
  const auto format = valueOf(kFormatWords, parts[0]);
  if (!format) refuse(text, "the format is aac, he or hev2");
  const auto strategy = valueOf(kStrategyWords, parts[1]);
  if (!strategy) refuse(text, "the strategy is abr, vbrc or vbr");
  std::uint32_t number = 0;
  const auto* const end = parts[2].data() + parts[2].size();
  const auto [rest, error] = std::from_chars(parts[2].data(), end, number);
  const bool isNumber = error == std::errc() && rest == end;
  if (*strategy == velk::kStrategy_VBR) {
    if (!isNumber || number > converter::kHighestQuality) {
      refuse(text, "for vbr the last value is a quality from 0 to 127");
    }
    return {*format, *strategy, static_cast<float>(number)};
  }
  const auto rate = isNumber ? velk::rateIndexOf(number) : std::nullopt;
  if (!rate) refuse(text, "the rate in kbit/s is one of " + rateList());
  return {*format, *strategy, *rate};
}

std::string settingWords(const EncoderSetting& setting) {
  const auto number = setting.hasQuality() ? setting.quality() : setting.rateKbps();
  return wordOf(kFormatWords, velk::formatOf(setting.format)) + "," +
         wordOf(kStrategyWords, velk::strategyOf(setting.strategy)) + "," +
         (number ? std::to_string(*number) : velk::kNoName);
}

std::string settingName(const EncoderSetting& setting) {
  auto name = formatName(setting.format) + " " + strategyName(setting.strategy);
  if (const auto quality = setting.quality()) return name + " q" + std::to_string(*quality);
  if (const auto kbps = setting.rateKbps()) return name + " " + std::to_string(*kbps);
  return name;
}

const velk::EncoderPreset& presetNamed(std::string_view word) {
  const auto* const preset =
      std::ranges::find(velk::encoderPresets, word, &velk::EncoderPreset::word);
  if (preset == velk::encoderPresets.end()) {
    throw UsageError("unknown preset '" + std::string(word) +
                     "': the presets are plus, 128k, streaming and high");
  }
  return *preset;
}

void applyEncoderSetting(AudioUnit unit, const EncoderSetting& setting) {
  const auto info =
      readProperty(unit, audio_unit::parameterInfoProperty, velk::kConverterParam_Format);
  if (info && setting.format > info->maxValue) {
    throw Failure(info->maxValue >= velk::kFormat_HE
                      ? Message::words("the converter does not do %1 for this file; "
                                       "choose the format he or aac")
                      : Message::words("the converter does not do %1 for this file; "
                                       "choose the format aac"),
                  {formatName(setting.format)});
  }
  setParameter(unit, velk::kConverterParam_Format, setting.format);
  setParameter(unit, velk::kConverterParam_Strategy, setting.strategy);
  setParameter(unit, velk::kConverterParam_RateQuality, setting.rateOrQuality);
}

void applyPreset(AudioUnit unit, std::uint32_t number) {
  const audio_unit::FactoryPresets presets(unit);
  auto status = presets.status();
  if (status == noErr) {
    const auto* const preset = presets.at(number);
    status = preset != nullptr ? writeProperty(unit, audio_unit::presentPresetProperty, *preset)
                               : kAudioUnitErr_InvalidPropertyValue;
  }
  if (status != noErr) {
    throw Failure(
        Message::words("the converter refused the preset (status %1); choose another one"),
        {status});
  }
}

EncoderSetting encoderSettingOf(AudioUnit unit) {
  return {parameter(unit, velk::kConverterParam_Format),
          parameter(unit, velk::kConverterParam_Strategy),
          parameter(unit, velk::kConverterParam_RateQuality)};
}

}  // namespace host

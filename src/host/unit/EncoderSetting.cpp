#include "host/unit/EncoderSetting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "contract/ConverterInterface.h"
#include "host/messages/Failure.h"

namespace host {
namespace {

constexpr std::uint32_t kVbr = 2;
constexpr std::uint32_t kHighestQuality = 127;

constexpr std::array<std::string_view, 3> kFormatWords = {"aac", "he", "hev2"};
constexpr std::array<std::string_view, 3> kStrategyWords = {"abr", "vbrc", "vbr"};
constexpr std::array<std::string_view, 4> kPresetWords = {"plus", "128k", "streaming", "high"};

template <std::size_t Count>
std::optional<std::uint32_t> indexOf(const std::array<std::string_view, Count>& words,
                                     std::string_view word) {
  const auto* const found = std::find(words.begin(), words.end(), word);
  if (found == words.end()) return std::nullopt;
  return static_cast<std::uint32_t>(found - words.begin());
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

void setParameter(AudioUnit unit, AudioUnitParameterID id, std::uint32_t value) {
  const AudioUnitParameter parameter{unit, id, kAudioUnitScope_Global, 0};
  const auto status =
      AUParameterSet(nullptr, nullptr, &parameter, static_cast<AudioUnitParameterValue>(value), 0);
  if (status != noErr) {
    throw Failure(
        Message::words("the converter refused the encoder setting (status %1); choose another one"),
        {status});
  }
}

std::uint32_t parameter(AudioUnit unit, AudioUnitParameterID id) {
  AudioUnitParameterValue value = 0;
  const auto status = AudioUnitGetParameter(unit, id, kAudioUnitScope_Global, 0, &value);
  if (status != noErr) {
    throw Failure(
        host::Message::words("the converter does not tell its encoder setting (status %1)"),
        {status});
  }
  return static_cast<std::uint32_t>(std::max(value, 0.0F));
}

}  // namespace

bool EncoderSetting::hasQuality() const {
  return strategy == kVbr;
}

std::optional<std::uint32_t> EncoderSetting::rateKbps() const {
  if (hasQuality() || rateOrQuality >= velk::bitRates.size()) return std::nullopt;
  return velk::bitRates.at(rateOrQuality);
}

std::string formatName(std::uint32_t format) {
  constexpr std::array<const char*, 3> names = {"AAC", "AAC HE", "AAC HEv2"};
  return format < names.size() ? names.at(format) : "-";
}

std::string strategyName(std::uint32_t strategy) {
  constexpr std::array<const char*, 3> names = {"ABR", "VBRC", "VBR"};
  return strategy < names.size() ? names.at(strategy) : "-";
}

EncoderSetting parsedEncoderSetting(std::string_view text) {
  const auto parts = fields(text);
  if (parts.size() != 3) refuse(text, "give FORMAT,STRATEGY,RATE such as aac,vbrc,256");
  const auto format = indexOf(kFormatWords, parts[0]);
  if (!format) refuse(text, "the format is aac, he or hev2");
  const auto strategy = indexOf(kStrategyWords, parts[1]);
  if (!strategy) refuse(text, "the strategy is abr, vbrc or vbr");
  std::uint32_t number = 0;
  const auto* const end = parts[2].data() + parts[2].size();
  const auto [rest, error] = std::from_chars(parts[2].data(), end, number);
  const bool isNumber = error == std::errc() && rest == end;
  if (*strategy == kVbr) {
    if (!isNumber || number > kHighestQuality) {
      refuse(text, "for vbr the last value is a quality from 0 to 127");
    }
    return {*format, *strategy, number};
  }
  const auto* const rate = std::find(velk::bitRates.begin(), velk::bitRates.end(), number);
  if (!isNumber || rate == velk::bitRates.end()) {
    refuse(text, "the rate in kbit/s is one of " + rateList());
  }
  return {*format, *strategy, static_cast<std::uint32_t>(rate - velk::bitRates.begin())};
}

std::string settingWords(const EncoderSetting& setting) {
  return std::string(kFormatWords.at(setting.format)) + "," +
         std::string(kStrategyWords.at(setting.strategy)) + "," +
         std::to_string(setting.rateKbps().value_or(setting.rateOrQuality));
}

std::string settingName(const EncoderSetting& setting) {
  const auto name = formatName(setting.format) + " " + strategyName(setting.strategy);
  if (setting.hasQuality()) return name + " q" + std::to_string(setting.rateOrQuality);
  const auto kbps = setting.rateKbps();
  return kbps ? name + " " + std::to_string(*kbps) : name;
}

std::uint32_t presetIndex(std::string_view name) {
  const auto index = indexOf(kPresetWords, name);
  if (!index) {
    throw UsageError("unknown preset '" + std::string(name) +
                     "': the presets are plus, 128k, streaming and high");
  }
  return *index;
}

void applyEncoderSetting(AudioUnit unit, const EncoderSetting& setting) {
  AudioUnitParameterInfo info{};
  UInt32 size = sizeof info;
  const auto status =
      AudioUnitGetProperty(unit, kAudioUnitProperty_ParameterInfo, kAudioUnitScope_Global,
                           velk::kConverterParam_Format, &info, &size);
  if (status == noErr && static_cast<float>(setting.format) > info.maxValue) {
    throw Failure(info.maxValue >= 1 ? Message::words("the converter does not do %1 for this file; "
                                                      "choose the format he or aac")
                                     : Message::words("the converter does not do %1 for this file; "
                                                      "choose the format aac"),
                  {formatName(setting.format)});
  }
  setParameter(unit, velk::kConverterParam_Format, setting.format);
  setParameter(unit, velk::kConverterParam_Strategy, setting.strategy);
  setParameter(unit, velk::kConverterParam_RateQuality, setting.rateOrQuality);
}

void applyPreset(AudioUnit unit, std::uint32_t index) {
  CFArrayRef presets = nullptr;
  UInt32 size = sizeof(CFArrayRef);
  auto status = AudioUnitGetProperty(unit, kAudioUnitProperty_FactoryPresets,
                                     kAudioUnitScope_Global, 0, &presets, &size);
  if (status == noErr && presets != nullptr) {
    const auto* const preset = static_cast<CFIndex>(index) < CFArrayGetCount(presets)
                                   ? static_cast<const AUPreset*>(CFArrayGetValueAtIndex(
                                         presets, static_cast<CFIndex>(index)))
                                   : nullptr;
    status = preset == nullptr
                 ? kAudioUnitErr_InvalidPropertyValue
                 : AudioUnitSetProperty(unit, kAudioUnitProperty_PresentPreset,
                                        kAudioUnitScope_Global, 0, preset, sizeof *preset);
    CFRelease(presets);
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

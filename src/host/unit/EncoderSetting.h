#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "audio_unit/Framework.h"

namespace host {

/// What a converter unit's three parameters ask for.
struct EncoderSetting {
  /// 0 AAC, 1 AAC HE, 2 AAC HEv2.
  std::uint32_t format = 0;
  /// 0 ABR, 1 VBRC, 2 VBR.
  std::uint32_t strategy = 0;
  /// VBR: quality, 0 to 127. Otherwise an index into the list of bit rates.
  std::uint32_t rateOrQuality = 0;

  friend bool operator==(const EncoderSetting&, const EncoderSetting&) = default;

  bool hasQuality() const;
  /// The rate, or nothing when there is a quality or the index names none.
  std::optional<std::uint32_t> rateKbps() const;
};

/// "AAC", "AAC HE", "AAC HEv2".
std::string formatName(std::uint32_t format);
/// "ABR", "VBRC", "VBR".
std::string strategyName(std::uint32_t strategy);

/// Reads "FORMAT,STRATEGY,RATE" as the command line has it: aac, he or hev2; abr, vbrc or vbr; a
/// rate of the list in kbit/s, or for vbr a quality from 0 to 127. Throws `UsageError`.
EncoderSetting parsedEncoderSetting(std::string_view text);

/// What `parsedEncoderSetting` reads as this setting: "aac,vbrc,256".
std::string settingWords(const EncoderSetting& setting);
/// What people read: "AAC VBRC 256", "AAC HE VBR q90".
std::string settingName(const EncoderSetting& setting);

/// A preset's place in a unit's list for plus, 128k, streaming or high. Throws `UsageError`.
std::uint32_t presetIndex(std::string_view name);

/// Both make the unit's listeners hear of it, as any host's change does. Throw `Failure` when the
/// unit refuses.
void applyEncoderSetting(AudioUnit unit, const EncoderSetting& setting);
void applyPreset(AudioUnit unit, std::uint32_t index);

/// What the unit's parameters say now. Throws `Failure` when the unit does not tell.
EncoderSetting encoderSettingOf(AudioUnit unit);

}  // namespace host

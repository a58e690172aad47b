#pragma once

#include <string>
#include <string_view>

#include "audio_unit/Framework.h"
#include "contract/EncoderPresets.h"
#include "contract/EncoderSetting.h"

/// Encoder settings on the command line, in text for people, and on a unit.
namespace host {

using velk::EncoderSetting;

/// Names of parameter values: "AAC", "AAC HE", "AAC HEv2"; "-" for a value that stands for nothing.
std::string formatName(float format);
/// "ABR", "VBRC", "VBR" or "-".
std::string strategyName(float strategy);

/// Reads "FORMAT,STRATEGY,RATE" as the command line has it: aac, he or hev2; abr, vbrc or vbr; a
/// rate of the list in kbit/s, or for vbr a quality from 0 to 127. Throws `UsageError`.
EncoderSetting parsedEncoderSetting(std::string_view text);

/// What `parsedEncoderSetting` reads as this setting: "aac,vbrc,256". A part that has no such word
/// is "-", which it refuses.
std::string settingWords(const EncoderSetting& setting);
/// What people read: "AAC VBRC 256", "AAC HE VBR q90".
std::string settingName(const EncoderSetting& setting);

/// The preset called plus, 128k, streaming or high. Throws `UsageError`.
const velk::EncoderPreset& presetNamed(std::string_view word);

/// Change the unit's setting in the name of a host, so that every listener hears of it. Throw
/// `Failure` when the unit refuses.
void applyEncoderSetting(AudioUnit unit, const EncoderSetting& setting);
/// `number` is a factory preset's.
void applyPreset(AudioUnit unit, std::uint32_t number);

/// What the unit's parameters ask for now, in whole numbers from 0 up. Throws `Failure` when the
/// unit does not tell.
EncoderSetting encoderSettingOf(AudioUnit unit);

}  // namespace host

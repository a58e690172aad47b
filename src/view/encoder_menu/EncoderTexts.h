#pragma once

#include <string>

#include "contract/EncoderSetting.h"

namespace ui {
class Bundle;
class Localization;
}  // namespace ui

namespace velk {

/// Names of parameter values, read by truncation toward zero. A value that stands for nothing, a
/// NaN and the infinities included, gives "-", which is not looked up in the strings table.
std::string formatName(float format, const ui::Bundle& bundle);
std::string strategyName(float strategy, const ui::Bundle& bundle);
/// kbit/s of a rate index, in the user's digits, without a unit.
std::string bitRateText(float rate, const ui::Localization& localization);
/// A quality as a whole number; "-" where no unsigned 32-bit number can hold it.
std::string qualityText(float quality, const ui::Localization& localization);

/// Title of a setting in the encoder menu, "AAC ABR 128 Kbps" or, with `isVBR`, "AAC VBR Quality:
/// 100". A translation may order the three parts differently.
std::string settingTitle(const EncoderSetting& setting, bool isVBR, const ui::Bundle& bundle,
                         const ui::Localization& localization);

}  // namespace velk

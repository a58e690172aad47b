#pragma once

#include <string>

namespace ui {
class Bundle;
class Localization;
}  // namespace ui

namespace velk {

/// Names of the values that parameters hold, by truncation toward zero; "-", which is no text to
/// translate, for a value that stands for nothing, a NaN and the infinities included.
std::string formatName(float format, const ui::Bundle& bundle);
std::string strategyName(float strategy, const ui::Bundle& bundle);
/// kbit/s of a rate index, in the user's digits, without a unit.
std::string bitRateText(float rate, const ui::Localization& localization);
/// A quality as a whole number; "-" where no unsigned 32-bit number can hold it.
std::string qualityText(float quality, const ui::Localization& localization);

/// Title of a setting in the encoder menu, "AAC ABR 128 Kbps" or "AAC VBR Quality: 100". A
/// translation may order the three parts otherwise.
std::string settingTitle(float format, float strategy, float rateQuality, bool isVBR,
                         const ui::Bundle& bundle, const ui::Localization& localization);

}  // namespace velk

#include "view/encoder_menu/EncoderTexts.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "contract/ConverterInterface.h"
#include "ui/Bundle.h"
#include "ui/Captions.h"
#include "ui/Localization.h"

namespace velk {

using ui::kStringsTable;

namespace {

constexpr const char* kNoText = "-";

std::string nameOf(float value, const std::array<const char*, 3>& names, const ui::Bundle& bundle) {
  const float code = std::trunc(value);
  // In this form a NaN is no code.
  if (!(code >= 0.0F && code < static_cast<float>(names.size()))) {
    return kNoText;
  }
  return bundle.localizedString(names[static_cast<std::size_t>(code)], kStringsTable);
}

}  // namespace

std::string formatName(float format, const ui::Bundle& bundle) {
  return nameOf(format, {"AAC", "AAC HE", "AAC HEv2"}, bundle);
}

std::string strategyName(float strategy, const ui::Bundle& bundle) {
  return nameOf(strategy, {"ABR", "VBRC", "VBR"}, bundle);
}

std::string bitRateText(float rate, const ui::Localization& localization) {
  constexpr float kLastIndex = bitRates.size() - 1;
  // Not truncated first: 16.5 is no rate.
  if (!(rate >= 0.0F && rate <= kLastIndex)) {
    return kNoText;
  }
  return localization.plain(bitRates[static_cast<std::size_t>(rate)]);
}

std::string qualityText(float quality, const ui::Localization& localization) {
  constexpr float kBeyondUInt32 = 4294967296.0F;
  const float whole = std::trunc(quality);
  if (!(whole >= 0.0F && whole < kBeyondUInt32)) {
    return kNoText;
  }
  return localization.plain(static_cast<std::uint32_t>(whole));
}

std::string settingTitle(float format, float strategy, float rateQuality, bool isVBR,
                         const ui::Bundle& bundle, const ui::Localization& localization) {
  const char* key = isVBR ? "%@ %@ Quality: %@" : "%@ %@ %@ Kbps";
  return ui::formatted(
      bundle.localizedString(key, kStringsTable),
      {formatName(format, bundle), strategyName(strategy, bundle),
       isVBR ? qualityText(rateQuality, localization) : bitRateText(rateQuality, localization)});
}

}  // namespace velk

#include "view/encoder_menu/EncoderTexts.h"

#include <cstdint>
#include <optional>

#include "ui/Bundle.h"
#include "ui/Captions.h"
#include "ui/Localization.h"

namespace velk {

using ui::kStringsTable;

namespace {

template <class Code>
std::string localizedName(std::optional<Code> code, const ui::Bundle& bundle) {
  return code ? bundle.localizedString(nameOf(*code), kStringsTable) : kNoName;
}

std::string plainText(std::optional<std::uint32_t> number, const ui::Localization& localization) {
  return number ? localization.plain(*number) : kNoName;
}

}  // namespace

std::string formatName(float format, const ui::Bundle& bundle) {
  return localizedName(formatOf(format), bundle);
}

std::string strategyName(float strategy, const ui::Bundle& bundle) {
  return localizedName(strategyOf(strategy), bundle);
}

std::string bitRateText(float rate, const ui::Localization& localization) {
  return plainText(bitRateOf(rate), localization);
}

std::string qualityText(float quality, const ui::Localization& localization) {
  return plainText(wholeNumberOf(quality), localization);
}

std::string settingTitle(const EncoderSetting& setting, bool isVBR, const ui::Bundle& bundle,
                         const ui::Localization& localization) {
  const char* key = isVBR ? "%@ %@ Quality: %@" : "%@ %@ %@ Kbps";
  return ui::formatted(bundle.localizedString(key, kStringsTable),
                       {formatName(setting.format, bundle), strategyName(setting.strategy, bundle),
                        isVBR ? qualityText(setting.rateOrQuality, localization)
                              : bitRateText(setting.rateOrQuality, localization)});
}

}  // namespace velk

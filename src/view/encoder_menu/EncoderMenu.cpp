#include "view/encoder_menu/EncoderTexts.h"
#include "view/encoder_menu/SettingKey.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The encoder menu: it names the unit's setting and keeps the custom settings that were seen.
namespace velk {

namespace {

constexpr int kOndaraPlusIndex = 0;
constexpr int kHighQualityTag = 4;
/// Newest custom entry first, from here down to the fixed last item.
constexpr int kFirstCustomIndex = 5;
constexpr int kMostItems = 16;

}  // namespace

std::string Velk_AUAACConverterCustomView::stringForFormat(float format) const {
  return formatName(format, toolkit_.bundle);
}

std::string Velk_AUAACConverterCustomView::stringForStrategy(float strategy) const {
  return strategyName(strategy, toolkit_.bundle);
}

std::string Velk_AUAACConverterCustomView::stringForBitRate(float rate) const {
  return bitRateText(rate, toolkit_.localization);
}

void Velk_AUAACConverterCustomView::updatePopup() {
  if (isEncoderOndaraPlus()) {
    showEncoderItem(kOndaraPlusIndex);
    return;
  }
  if (isEncoderHighQuality()) {
    showEncoderItem(encoderPopup->indexOfItemWithTag(kHighQualityTag));
    return;
  }
  const EncoderSetting setting = {getFormat(), getStrategy(),
                                  getParameterValue(kConverterParam_RateQuality)};
  const ui::Dictionary key = settingKey(setting);
  const int known = encoderPopup->indexOfItemWithRepresentedObject(key);
  if (known >= 0) {
    showEncoderItem(known);
    return;
  }

  const bool isVBR = getStrategy() == kStrategy_VBR;
  const std::string title = settingTitle(setting, isVBR, toolkit_.bundle, toolkit_.localization);
  if (encoderPopup->numberOfItems() >= kMostItems) {
    encoderPopup->removeItemAtIndex(encoderPopup->numberOfItems() - 2);
  }
  encoderPopup->insertItemWithTitle(title, kFirstCustomIndex);
  if (ui::MenuItem* item = encoderPopup->itemAtIndex(kFirstCustomIndex)) {
    item->setRepresentedObject(key);
    item->setAction([this](ui::Object* sender) { setCustomFormat(sender); });
  }
  showEncoderItem(kFirstCustomIndex);
}

/// A pick selects its item before the unit has been asked, so the one before has to be kept.
void Velk_AUAACConverterCustomView::showEncoderItem(int index) {
  shownEncoderItem_ = index;
  encoderPopup->selectItemAtIndex(index);
}

void Velk_AUAACConverterCustomView::setCustomFormat(ui::Object* sender) {
  const auto* item = dynamic_cast<ui::MenuItem*>(sender);
  if (item == nullptr || item->representedObject() == nullptr) {
    return;
  }
  // A copy, since the item may leave the menu before the last value is written.
  const EncoderSetting setting = settingOf(*item->representedObject());
  setFormat(setting.format);
  setStrategy(setting.strategy);
  setParameterValue(kConverterParam_RateQuality, setting.rateOrQuality);
}

std::string Velk_AUAACConverterCustomView::getEncoderName() const {
  return encoderPopup->titleOfSelectedItem();
}

}  // namespace velk

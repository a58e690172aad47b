#include "view/encoder_menu/Velk_AACEncodingViewSettingsController.h"

#include <cmath>

#include "contract/ConverterInterface.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

namespace {

constexpr int kOKReturn = 1;
constexpr int kCancelReturn = 0;
constexpr int kRateTab = 0;
constexpr int kQualityTab = 1;
constexpr int kABRItem = 0;
constexpr int kVBRItem = 2;
constexpr int kHEv2Item = 2;

/// Index of the item that a value stands for; -1 for a value that is no index.
int itemFor(float value) {
  constexpr float kMostItems = 1000.0F;
  const float whole = std::trunc(value);
  return whole >= 0.0F && whole < kMostItems ? static_cast<int>(whole) : -1;
}

float selectedIndex(const ui::PopUpButton& popUp) {
  return static_cast<float>(popUp.indexOfSelectedItem());
}

/// Takes the sheet off the screen and tells the view, whatever happened before.
class Closing {
 public:
  Closing(ui::Sheets& sheets, ui::Sheet& sheet, Velk_AUAACConverterCustomView& view)
      : sheets_(sheets), sheet_(sheet), view_(view) {}
  Closing(const Closing&) = delete;
  Closing& operator=(const Closing&) = delete;
  ~Closing() {
    view_.configSheetDidClose();
    sheets_.orderOut(sheet_);
  }

 private:
  ui::Sheets& sheets_;
  ui::Sheet& sheet_;
  Velk_AUAACConverterCustomView& view_;
};

}  // namespace

Velk_AACEncodingViewSettingsController::Velk_AACEncodingViewSettingsController(ui::Toolkit& toolkit)
    : toolkit_(toolkit) {
  connections_.addOutlet("settingsSheet", settingsSheet_);
  connections_.addOutlet("typePopup", typePopup);
  connections_.addOutlet("strategyPopup", strategyPopup);
  connections_.addOutlet("rateQualityTabView", rateQualityTabView);
  connections_.addOutlet("bitratePopup", bitratePopup);
  connections_.addOutlet("rateLabel", rateLabel);
  connections_.addOutlet("qualitySlider", qualitySlider);
  connections_.addOutlet("OKButton", OKButton);
  connections_.addOutlet("cancelButton", cancelButton);
  connections_.addAction("setType:", [this](ui::Object* sender) { setType(sender); });
  connections_.addAction("setStrategy:", [this](ui::Object* sender) { setStrategy(sender); });
  connections_.addAction("setBitrate:", [this](ui::Object* sender) { setBitrate(sender); });
  connections_.addAction("setQuality:", [this](ui::Object* sender) { setQuality(sender); });
  connections_.addAction("OKPressed:", [this](ui::Object* sender) { OKPressed(sender); });
  connections_.addAction("cancelPressed:", [this](ui::Object* sender) { cancelPressed(sender); });
}

void Velk_AACEncodingViewSettingsController::setOwner(Velk_AUAACConverterCustomView* view) {
  owner = view;
  initialType = owner->getFormat();
  initialStrategy = owner->getStrategy();
  initialQualityOrRate = owner->getParameterValue(kConverterParam_RateQuality);
  offerTypes(owner->hasHEV2());
  updateUI();
}

void Velk_AACEncodingViewSettingsController::offerTypes(bool withHEv2) {
  const bool isOffered = typePopup->numberOfItems() > kHEv2Item;
  if (isOffered && !withHEv2) {
    hev2Title_ = typePopup->itemAtIndex(kHEv2Item)->title();
    typePopup->removeItemAtIndex(kHEv2Item);
  } else if (!isOffered && withHEv2 && !hev2Title_.empty()) {
    // The view was bound to a converter without it earlier.
    typePopup->insertItemWithTitle(hev2Title_, kHEv2Item);
  }
}

void Velk_AACEncodingViewSettingsController::updateUI() {
  const float format = owner->getFormat();
  const float strategy = owner->getStrategy();
  const float rateQuality = owner->getParameterValue(kConverterParam_RateQuality);
  // A type that the menu does not offer shows as AAC HE.
  const float type = format >= static_cast<float>(typePopup->numberOfItems()) ? kFormat_HE : format;
  typePopup->selectItemAtIndex(itemFor(type));
  strategyPopup->selectItemAtIndex(itemFor(strategy));
  rateLabel->setStringValue(
      owner->localized(strategy == kStrategy_VBRC ? "Base Bit Rate:" : "Bit Rate:"));
  if (strategy == kStrategy_VBR) {
    rateQualityTabView->selectItemAtIndex(kQualityTab);
    qualitySlider->setFloatValue(rateQuality);
  } else {
    rateQualityTabView->selectItemAtIndex(kRateTab);
    bitratePopup->selectItemAtIndex(itemFor(rateQuality));
  }
  const bool mayChooseStrategy = type == kFormat_AAC;
  if (!mayChooseStrategy) {
    strategyPopup->selectItemAtIndex(kABRItem);
  }
  strategyPopup->setEnabled(mayChooseStrategy);
}

void Velk_AACEncodingViewSettingsController::setType(ui::Object* /*sender*/) {
  owner->setFormat(selectedIndex(*typePopup));
}

void Velk_AACEncodingViewSettingsController::setStrategy(ui::Object* /*sender*/) {
  owner->setStrategy(selectedIndex(*strategyPopup));
}

void Velk_AACEncodingViewSettingsController::setBitrate(ui::Object* sender) {
  if (const auto* popUp = dynamic_cast<ui::PopUpButton*>(sender)) {
    owner->setRate(selectedIndex(*popUp));
  }
}

void Velk_AACEncodingViewSettingsController::setQuality(ui::Object* sender) {
  if (const auto* slider = dynamic_cast<ui::Slider*>(sender)) {
    owner->setQuality(static_cast<float>(slider->intValue()));
  }
}

void Velk_AACEncodingViewSettingsController::OKPressed(ui::Object* /*sender*/) {
  toolkit_.sheets.endSheet(*settingsSheet_, kOKReturn);
}

void Velk_AACEncodingViewSettingsController::cancelPressed(ui::Object* /*sender*/) {
  toolkit_.sheets.endSheet(*settingsSheet_, kCancelReturn);
}

void Velk_AACEncodingViewSettingsController::settingsSheetDidEnd(
    ui::Sheet& sheet, int returnCode, Velk_AUAACConverterCustomView* contextInfo) {
  const Closing closing(toolkit_.sheets, sheet, *contextInfo);
  if (returnCode == kOKReturn) {
    writeControls(*contextInfo);
  } else {
    restoreInitialSetting(*contextInfo);
  }
  contextInfo->updatePopup();
}

// Both write the strategy before the third value, whose meaning depends on it.

void Velk_AACEncodingViewSettingsController::writeControls(
    Velk_AUAACConverterCustomView& view) const {
  view.setFormat(selectedIndex(*typePopup));
  view.setStrategy(selectedIndex(*strategyPopup));
  if (strategyPopup->indexOfSelectedItem() != kVBRItem) {
    view.setRate(selectedIndex(*bitratePopup));
  } else {
    view.setQuality(static_cast<float>(qualitySlider->intValue()));
  }
}

void Velk_AACEncodingViewSettingsController::restoreInitialSetting(
    Velk_AUAACConverterCustomView& view) const {
  view.setFormat(initialType);
  view.setStrategy(initialStrategy);
  if (initialStrategy != kStrategy_VBR) {
    view.setRate(initialQualityOrRate);
  } else {
    view.setQuality(initialQualityOrRate);
  }
}

}  // namespace velk

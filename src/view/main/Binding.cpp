#include "contract/EncoderPresets.h"
#include "view/audition/Velk_AACEncodingViewAuditionController.h"
#include "view/encoder_menu/SettingKey.h"
#include "view/listening_test/Velk_AACEncodingViewListeningTestController.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// Binds the view to a unit and tears everything down again.
namespace velk {

namespace {

constexpr int k128KPresetTag = 2;
constexpr int kStreamingPresetTag = 3;

}  // namespace

void Velk_AUAACConverterCustomView::setAU(AudioUnit unit) {
  if (mAU != nullptr) {
    priv_removeListeners();
  }
  mAU = unit;
  for (const AudioUnitParameterID parameter :
       {kConverterParam_Format, kConverterParam_Strategy, kConverterParam_RateQuality}) {
    priv_addListenerForParameter(parameter, kAudioUnitScope_Global, 0);
  }
  for (const AudioUnitPropertyID property :
       {kConverterProperty_MonitorSource, kConverterProperty_ResetPeakStats,
        kConverterProperty_ListeningTestActive}) {
    addPropertyListener(property);
  }

  monitoringEncoder_ = readProperty(mAU, kConverterProperty_MonitorSource).valueOr(0) == 0;
  numChannels_ = getNumChannelsFromAudioUnit();
  isPerformingListeningTest_ =
      readProperty(mAU, kConverterProperty_ListeningTestActive).valueOr(0) != 0;

  auditionController->setOwner(this);
  listeningTestController->setOwner(this);
  hasBeenBound_ = true;
  if (TabController* controller = controllerForTabAtIndex(tabView->indexOfSelectedItem())) {
    controller->prepare();
  }
  tabView->setDelegate(this);

  hasHEV2_ = unitOffersHEV2();
  attachKey(k128KPresetTag, settingKey(kPreset_128KAAC.setting));
  attachKey(kStreamingPresetTag, settingKey(kPreset_Streaming.setting));
  updatePopup();
}

bool Velk_AUAACConverterCustomView::unitOffersHEV2() const {
  const auto info = readProperty(mAU, audio_unit::parameterInfoProperty, kConverterParam_Format);
  return info && info->maxValue == kFormat_HEv2;
}

void Velk_AUAACConverterCustomView::attachKey(int tag, const ui::Dictionary& key) {
  if (ui::MenuItem* item = encoderPopup->itemAtIndex(encoderPopup->indexOfItemWithTag(tag))) {
    item->setRepresentedObject(key);
  }
}

void Velk_AUAACConverterCustomView::cleanup() {
  inUse_.reset();
  pendingExpand_.reset();
  priv_removeListeners();
  if (hasBeenBound_) {
    if (TabController* controller = controllerForTabAtIndex(tabView->indexOfSelectedItem())) {
      controller->cleanup();
    }
  }
  keyBindings_.clear();
}

void Velk_AUAACConverterCustomView::viewWillMoveToSuperview(bool hasNewSuperview) {
  if (!hasNewSuperview && !isTornDown()) {
    cleanup();
  }
}

void Velk_AUAACConverterCustomView::viewDidMoveToWindow() {
  if (native_.hasWindow()) {
    native_.makeFirstResponder();
  }
}

}  // namespace velk

#include "view/audition/Velk_AACEncodingViewAuditionController.h"
#include "view/encoder_menu/EncoderSetting.h"
#include "view/listening_test/Velk_AACEncodingViewListeningTestController.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// Binds the view to a unit and tears everything down again.
namespace velk {

namespace {

constexpr int k128KPresetTag = 2;
constexpr int kStreamingPresetTag = 3;
constexpr float kIndexOf128Kbps = 10.0F;
constexpr float kIndexOf64Kbps = 7.0F;

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

  monitoringEncoder_ = propertyValue(kConverterProperty_MonitorSource, 0) == 0;
  numChannels_ = getNumChannelsFromAudioUnit();
  isPerformingListeningTest_ = propertyValue(kConverterProperty_ListeningTestActive, 0) != 0;

  auditionController->setOwner(this);
  listeningTestController->setOwner(this);
  hasBeenBound_ = true;
  if (TabController* controller = controllerForTabAtIndex(tabView->indexOfSelectedItem())) {
    controller->prepare();
  }
  tabView->setDelegate(this);

  hasHEV2_ = unitOffersHEV2();
  attachSetting(k128KPresetTag, encoderSetting(kFormat_AAC, kStrategy_VBRC, kIndexOf128Kbps));
  attachSetting(kStreamingPresetTag, encoderSetting(kFormat_HE, kStrategy_ABR, kIndexOf64Kbps));
  updatePopup();
}

bool Velk_AUAACConverterCustomView::unitOffersHEV2() const {
  AudioUnitParameterInfo info{};
  UInt32 size = sizeof(info);
  const OSStatus status =
      AudioUnitGetProperty(mAU, kAudioUnitProperty_ParameterInfo, kAudioUnitScope_Global,
                           kConverterParam_Format, &info, &size);
  return status == noErr && info.maxValue == kFormat_HEv2;
}

void Velk_AUAACConverterCustomView::attachSetting(int tag, const ui::Dictionary& setting) {
  if (ui::MenuItem* item = encoderPopup->itemAtIndex(encoderPopup->indexOfItemWithTag(tag))) {
    item->setRepresentedObject(setting);
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

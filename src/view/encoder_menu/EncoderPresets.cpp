#include "contract/EncoderPresets.h"

#include <string>

#include "audio_unit/FactoryPresets.h"
#include "ui/Log.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The four presets: the unit applies them, the view only recognises them.
namespace velk {

namespace {

/// Asks for no more than it takes: a rate is only there where the strategy has one.
bool hasSetting(const Velk_AUAACConverterCustomView& view, const EncoderSetting& setting) {
  return view.getFormat() == setting.format && view.getStrategy() == setting.strategy &&
         view.getRate() == setting.rateOrQuality;
}

}  // namespace

bool Velk_AUAACConverterCustomView::isEncoderOndaraPlus() const {
  return hasSetting(*this, kPreset_OndaraPlus.setting);
}

bool Velk_AUAACConverterCustomView::isEncoderHighQuality() const {
  return hasSetting(*this, kPreset_HighQuality.setting);
}

void Velk_AUAACConverterCustomView::setPreset(UInt32 index) {
  if (!applyPreset(index)) {
    showEncoderItem(shownEncoderItem_);
  }
}

/// Whether the unit took it. The log says what the unit answered; a preset that is not in its list
/// is ignored.
bool Velk_AUAACConverterCustomView::applyPreset(UInt32 index) const {
  const audio_unit::FactoryPresets presets(mAU);
  if (!presets) {
    ui::log("unable to get presets " + std::to_string(presets.status()));
    return false;
  }
  const AUPreset* preset = presets.at(index);
  if (preset == nullptr) {
    return false;
  }
  const OSStatus written = writeProperty(mAU, audio_unit::presentPresetProperty, *preset);
  if (written != noErr) {
    ui::log("unable to set preset " + std::to_string(index) + ": " + std::to_string(written));
  }
  return written == noErr;
}

void Velk_AUAACConverterCustomView::setOndaraPlusEncoder(ui::Object* /*sender*/) {
  setPreset(kPreset_OndaraPlus.number);
}

void Velk_AUAACConverterCustomView::set128KAACPreset(ui::Object* /*sender*/) {
  setPreset(kPreset_128KAAC.number);
}

void Velk_AUAACConverterCustomView::setStreamingPreset(ui::Object* /*sender*/) {
  setPreset(kPreset_Streaming.number);
}

void Velk_AUAACConverterCustomView::setHighQualityPreset(ui::Object* /*sender*/) {
  setPreset(kPreset_HighQuality.number);
}

}  // namespace velk

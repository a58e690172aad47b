#include <memory>
#include <string>
#include <type_traits>

#include "ui/Log.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The four presets: the unit applies them, the view only recognises them.
namespace velk {

namespace {

constexpr float kOndaraPlusRate = 14.0F;
constexpr float kHighQualityRate = 16.0F;

struct Release {
  void operator()(CFArrayRef array) const { CFRelease(array); }
};
using OwnedArray = std::unique_ptr<std::remove_pointer_t<CFArrayRef>, Release>;

}  // namespace

bool Velk_AUAACConverterCustomView::isEncoderOndaraPlus() const {
  return getFormat() == kFormat_AAC && getStrategy() == kStrategy_VBRC &&
         getRate() == kOndaraPlusRate;
}

bool Velk_AUAACConverterCustomView::isEncoderHighQuality() const {
  return getFormat() == kFormat_HE && getStrategy() == kStrategy_VBRC &&
         getRate() == kHighQualityRate;
}

void Velk_AUAACConverterCustomView::setPreset(UInt32 index) {
  CFArrayRef list = nullptr;
  UInt32 size = sizeof(CFArrayRef);
  const OSStatus read = AudioUnitGetProperty(mAU, kAudioUnitProperty_FactoryPresets,
                                             kAudioUnitScope_Global, 0, &list, &size);
  if (read != noErr || list == nullptr) {
    ui::log("unable to get presets " + std::to_string(read));
    return;
  }
  const OwnedArray presets(list);
  if (CFArrayGetCount(list) <= static_cast<CFIndex>(index)) {
    return;
  }
  const void* preset = CFArrayGetValueAtIndex(list, static_cast<CFIndex>(index));
  if (preset == nullptr) {
    return;
  }
  const OSStatus written = AudioUnitSetProperty(
      mAU, kAudioUnitProperty_PresentPreset, kAudioUnitScope_Global, 0, preset, sizeof(AUPreset));
  if (written != noErr) {
    ui::log("unable to set preset " + std::to_string(index) + ": " + std::to_string(written));
  }
}

void Velk_AUAACConverterCustomView::setOndaraPlusEncoder(ui::Object* /*sender*/) {
  setPreset(0);
}

void Velk_AUAACConverterCustomView::set128KAACPreset(ui::Object* /*sender*/) {
  setPreset(1);
}

void Velk_AUAACConverterCustomView::setStreamingPreset(ui::Object* /*sender*/) {
  setPreset(2);
}

void Velk_AUAACConverterCustomView::setHighQualityPreset(ui::Object* /*sender*/) {
  setPreset(3);
}

}  // namespace velk

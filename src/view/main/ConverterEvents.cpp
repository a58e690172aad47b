#include "ui/Log.h"
#include "ui/NotificationCenter.h"
#include "view/encoder_menu/Velk_AACEncodingViewSettingsController.h"
#include "view/main/ConverterEventListenerDispatcher.h"
#include "view/main/Notifications.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// Listening to the converter: registration, and what each event leads to.
namespace velk {

namespace {

/// Seconds.
constexpr Float32 kNotificationInterval = 0.05F;
constexpr Float32 kValueChangeGranularity = 0.05F;

}  // namespace

void ConverterEventListenerDispatcher(void* inUserData, void* inObject,
                                      const AudioUnitEvent* inEvent, UInt64 /*inEventHostTime*/,
                                      AudioUnitParameterValue inParameterValue) {
  ui::runGuarded([&] {
    static_cast<Velk_AUAACConverterCustomView*>(inUserData)
        ->priv_eventListener(inObject, *inEvent, inParameterValue);
  });
}

void Velk_AUAACConverterCustomView::priv_addListenerForParameter(AudioUnitParameterID parameter,
                                                                 AudioUnitScope scope,
                                                                 AudioUnitElement element) {
  if (mAU == nullptr) {
    return;
  }
  if (mAUEventListener == nullptr) {
    AUEventListenerCreate(ConverterEventListenerDispatcher, this, CFRunLoopGetCurrent(),
                          kCFRunLoopCommonModes, kNotificationInterval, kValueChangeGranularity,
                          &mAUEventListener);
  }
  AudioUnitEvent event{};
  event.mArgument.mParameter = {mAU, parameter, scope, element};
  for (const AudioUnitEventType type :
       {kAudioUnitEvent_BeginParameterChangeGesture, kAudioUnitEvent_EndParameterChangeGesture,
        kAudioUnitEvent_ParameterValueChange}) {
    event.mEventType = type;
    AUEventListenerAddEventType(mAUEventListener, this, &event);
  }
}

void Velk_AUAACConverterCustomView::addPropertyListener(AudioUnitPropertyID property) {
  AudioUnitEvent event{};
  event.mEventType = kAudioUnitEvent_PropertyChange;
  event.mArgument.mProperty = {mAU, property, kAudioUnitScope_Global, 0};
  AUEventListenerAddEventType(mAUEventListener, this, &event);
}

void Velk_AUAACConverterCustomView::priv_removeListeners() {
  if (mAUEventListener != nullptr) {
    AUListenerDispose(mAUEventListener);
  }
  mAUEventListener = nullptr;
  mAU = nullptr;
}

void Velk_AUAACConverterCustomView::priv_eventListener(void* object, const AudioUnitEvent& event,
                                                       float /*value*/) {
  UInt32 changed = 0;
  if (event.mEventType == kAudioUnitEvent_ParameterValueChange) {
    changed = event.mArgument.mParameter.mParameterID;
    if (changed <= kConverterParam_RateQuality) {
      if (isCustomConfigurationSheetOpen) {
        settingsController->updateUI();
      } else {
        updatePopup();
      }
      return;
    }
  } else if (event.mEventType == kAudioUnitEvent_PropertyChange) {
    changed = event.mArgument.mProperty.mPropertyID;
  } else {
    return;
  }

  ui::NotificationCenter& center = ui::NotificationCenter::defaultCenter();
  switch (changed) {
    case kConverterProperty_ListeningTestActive:
      isPerformingListeningTest_ =
          readProperty(mAU, kConverterProperty_ListeningTestActive).valueOr(0) != 0;
      center.post(auAACListeningTestStateChangedNotification, object);
      break;
    case kConverterProperty_ResetPeakStats:
      center.post(auAACResetStatsNotification, object);
      break;
    case kConverterProperty_MonitorSource:
      // The change may come from elsewhere. A read that fails keeps what is known.
      monitoringEncoder_ =
          readProperty(mAU, kConverterProperty_MonitorSource).valueOr(monitoringEncoder_ ? 0 : 1) ==
          0;
      center.post(auAACSourceSelectionChangedNotification, object);
      break;
    default:
      break;
  }
}

}  // namespace velk

#include "audio_unit/AUEventListener.h"

#include <cmath>
#include <memory>

#include "audio_unit/AudioUnitProperties.h"
#include "audio_unit/Dispatcher.h"
#include "audio_unit/HostTime.h"
#include "audio_unit/RunLoop.h"
#include "audio_unit/Unit.h"
#include "audio_unit/UnitIdentity.h"

namespace {

using audio_unit::EventListener;

constexpr Float32 kLongestInterval = 3600;

/// False for NaN, too.
bool isInterval(Float32 seconds) {
  return seconds >= 0 && seconds <= kLongestInterval;
}

/// Rounded to the microsecond, so that 0.05 as a 32-bit float is exactly 50 ms.
std::chrono::microseconds toMicroseconds(Float32 seconds) {
  return std::chrono::microseconds(std::llround(static_cast<double>(seconds) * 1e6));
}

/// Gets the unit that the event concerns; an error if the event is malformed or names no unit.
OSStatus findUnit(const AudioUnitEvent* event, AudioUnit& unit) {
  if (!event) return kAudio_ParamError;
  switch (event->mEventType) {
    case kAudioUnitEvent_ParameterValueChange:
    case kAudioUnitEvent_BeginParameterChangeGesture:
    case kAudioUnitEvent_EndParameterChangeGesture:
      unit = event->mArgument.mParameter.mAudioUnit;
      break;
    case kAudioUnitEvent_PropertyChange:
      unit = event->mArgument.mProperty.mAudioUnit;
      break;
    default:
      return kAudio_ParamError;
  }
  return unit ? OSStatus{noErr} : OSStatus{kAudioUnitErr_InvalidElement};
}

void post(const EventListener* sendingListener, const void* sendingObject,
          const AudioUnitEvent& event, const audio_unit::Unit& unit,
          AudioUnitParameterValue value) {
  audio_unit::Mailbox::postToAll({event, unit.identity()->serial, value,
                                  audio_unit::hostTime(std::chrono::steady_clock::now()),
                                  sendingListener, sendingObject});
}

}  // namespace

OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData, CFRunLoopRef inRunLoop,
                               CFStringRef inRunLoopMode, Float32 inNotificationInterval,
                               Float32 inValueChangeGranularity, AUEventListenerRef* outListener) {
  if (!inProc || !inRunLoop || !outListener || inRunLoopMode != kCFRunLoopCommonModes ||
      !isInterval(inNotificationInterval) || !isInterval(inValueChangeGranularity)) {
    return kAudio_ParamError;
  }
  audio_unit::Dispatcher& dispatcher = inRunLoop->dispatcher();
  auto listener = std::make_unique<EventListener>(
      EventListener{inProc, inUserData, toMicroseconds(inNotificationInterval), &dispatcher});
  dispatcher.addListener(*listener);
  *outListener = listener.release();
  return noErr;
}

OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener, void* inObject,
                                     const AudioUnitEvent* inEvent) {
  if (!inListener) return kAudio_ParamError;
  AudioUnit unit = nullptr;
  if (const OSStatus status = findUnit(inEvent, unit); status != noErr) return status;
  if (inListener->dispatcher) {
    inListener->dispatcher->addRegistration(*inListener, inObject, *inEvent);
  }
  return noErr;
}

OSStatus AUListenerDispose(AUParameterListenerRef inListener) {
  if (!inListener) return kAudio_ParamError;
  const std::unique_ptr<EventListener> listener(inListener);
  if (listener->dispatcher) listener->dispatcher->removeListener(*listener);
  return noErr;
}

OSStatus AUEventListenerNotify(AUEventListenerRef inSendingListener, void* inSendingObject,
                               const AudioUnitEvent* inEvent) {
  AudioUnit unit = nullptr;
  if (const OSStatus status = findUnit(inEvent, unit); status != noErr) return status;
  AudioUnitParameterValue value = 0;
  if (inEvent->mEventType == kAudioUnitEvent_ParameterValueChange) {
    const AudioUnitParameter& parameter = inEvent->mArgument.mParameter;
    const OSStatus status =
        unit->getParameter(parameter.mParameterID, parameter.mScope, parameter.mElement, value);
    if (status != noErr) return status;
  }
  post(inSendingListener, inSendingObject, *inEvent, *unit, value);
  return noErr;
}

OSStatus AUParameterSet(AUParameterListenerRef inSendingListener, void* inSendingObject,
                        const AudioUnitParameter* inParameter, AudioUnitParameterValue inValue,
                        UInt32 inBufferOffsetInFrames) {
  if (!inParameter) return kAudio_ParamError;
  const OSStatus status =
      AudioUnitSetParameter(inParameter->mAudioUnit, inParameter->mParameterID, inParameter->mScope,
                            inParameter->mElement, inValue, inBufferOffsetInFrames);
  if (status != noErr) return status;
  AudioUnitEvent event{kAudioUnitEvent_ParameterValueChange, {}};
  event.mArgument.mParameter = *inParameter;
  post(inSendingListener, inSendingObject, event, *inParameter->mAudioUnit, inValue);
  return noErr;
}

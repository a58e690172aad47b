#pragma once

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/CoreFoundation.h"
#include "audio_unit/Export.h"

/// Listening to parameters and properties of units.
///
/// - Callbacks happen on the thread whose run loop the listener was created with, when that run loop
///   is pumped, whatever thread made the change. Making a change never blocks and never allocates.
/// - A parameter's value changes reach a registered object at most once per notification interval,
///   with the newest value; gesture and property events are delivered one by one, in order.
/// - Registrations that match one event are called in the order in which they were made.
/// - The sender that `AUParameterSet` or `AUEventListenerNotify` names is not called back: with a
///   sending object only that object of the sending listener, with a null object the whole listener.
/// - After `AUListenerDispose` nothing arrives, not even what was waiting. A listener may be disposed
///   of inside its own callback.
///
/// Create, register and dispose on the listener's own thread; set and notify on any thread.

using AUEventListenerRef = audio_unit::EventListener*;
using AUParameterListenerRef = AUEventListenerRef;

using AUEventListenerProc = void (*)(void* inUserData, void* inObject,
                                     const AudioUnitEvent* inEvent, UInt64 inEventHostTime,
                                     AudioUnitParameterValue inParameterValue);

/// `inNotificationInterval` and `inValueChangeGranularity` are in seconds. `inRunLoopMode` has to be
/// `kCFRunLoopCommonModes`; a null run loop or function is an error (-50).
AUDIO_UNIT_EXPORT OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData,
                                                 CFRunLoopRef inRunLoop, CFStringRef inRunLoopMode,
                                                 Float32 inNotificationInterval,
                                                 Float32 inValueChangeGranularity,
                                                 AUEventListenerRef* outListener);

/// Registers `inObject` for one event. Registering the same pair again changes nothing.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener,
                                                       void* inObject,
                                                       const AudioUnitEvent* inEvent);

AUDIO_UNIT_EXPORT OSStatus AUListenerDispose(AUParameterListenerRef inListener);

/// Tells everyone registered for the event, except the named sender.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerNotify(AUEventListenerRef inSendingListener,
                                                 void* inSendingObject,
                                                 const AudioUnitEvent* inEvent);

/// Writes the parameter and, when the unit took it, tells everyone registered for it except the
/// named sender. Returns the unit's status.
AUDIO_UNIT_EXPORT OSStatus AUParameterSet(AUParameterListenerRef inSendingListener,
                                          void* inSendingObject,
                                          const AudioUnitParameter* inParameter,
                                          AudioUnitParameterValue inValue,
                                          UInt32 inBufferOffsetInFrames);

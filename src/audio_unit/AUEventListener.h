#pragma once

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/CoreFoundation.h"
#include "audio_unit/Export.h"

/// Listening for changes of units' parameters and properties.
///
/// - Callbacks run on the thread whose run loop the listener was created with, while that loop is
///   pumped, whichever thread made the change. Making a change never blocks and never allocates.
/// - Value changes of a parameter reach a registered object at most once per notification interval,
///   with the newest value: the first one after a quiet interval at the next pump, later ones when
///   the interval since the last callback has passed. Gesture and property events are delivered one
///   by one, in order, and do not wait for values.
/// - Registrations that match the same event are called in the order in which they were made. They
///   do not hear of changes made before them.
/// - The sender named in `AUParameterSet` or `AUEventListenerNotify` is not called back: only that
///   object of the sending listener or, if the object is null, the whole listener. If a change of
///   the same parameter by someone else is still waiting for the sender, it is called for that
///   change, with the newest value.
/// - After `AUListenerDispose` nothing arrives, not even what was already waiting. A listener may
///   be disposed of inside its own callback or another's.
/// - Nothing is lost silently. A run loop holds 4,096 waiting changes; if more are made before it
///   is pumped, the next pump announces every registered parameter (with its value read from the
///   unit or, if that fails, the last known value), every registered property and every registered
///   end of a gesture to everyone, without a sender. The start of a gesture that found no room is
///   not repeated.
///
/// Create, register and dispose on the listener's own thread; set and notify on any thread. A null
/// listener, event, parameter or result pointer gives `kAudio_ParamError`, a null unit
/// `kAudioUnitErr_InvalidElement`.

using AUEventListenerRef = audio_unit::EventListener*;
using AUParameterListenerRef = AUEventListenerRef;

/// `inEventHostTime` is when the (newest) change was made: steady clock, nanoseconds. For an event
/// caused by an overflow it is the time of the pump. `inParameterValue` is the parameter's newest
/// value, or 0 if the event is not a value change.
using AUEventListenerProc = void (*)(void* inUserData, void* inObject,
                                     const AudioUnitEvent* inEvent, UInt64 inEventHostTime,
                                     AudioUnitParameterValue inParameterValue);

/// Makes a listener whose callbacks run when `inRunLoop` is pumped. `inNotificationInterval` and
/// `inValueChangeGranularity` are in seconds, 0 to 3,600. All waiting changes of a parameter are
/// merged into one, however far apart they are, so the granularity has no effect. `inRunLoopMode`
/// must be `kCFRunLoopCommonModes`. On an error `outListener` is unchanged.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData,
                                                 CFRunLoopRef inRunLoop, CFStringRef inRunLoopMode,
                                                 Float32 inNotificationInterval,
                                                 Float32 inValueChangeGranularity,
                                                 AUEventListenerRef* outListener);

/// Registers `inObject` for one event. The object is only passed back to the callback and may be
/// null. Registering the same pair again has no effect. The registration ends with the unit.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener,
                                                       void* inObject,
                                                       const AudioUnitEvent* inEvent);

/// Destroys the listener and its registrations; the reference is invalid afterwards.
AUDIO_UNIT_EXPORT OSStatus AUListenerDispose(AUParameterListenerRef inListener);

/// Announces the event to everyone registered for it except the named sender. For a value change
/// the value is read from the unit; if that fails, its status is returned and nothing is announced.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerNotify(AUEventListenerRef inSendingListener,
                                                 void* inSendingObject,
                                                 const AudioUnitEvent* inEvent);

/// Writes the parameter and, if the unit accepted it, announces the change to everyone registered
/// for it except the named sender. Returns the unit's status.
AUDIO_UNIT_EXPORT OSStatus AUParameterSet(AUParameterListenerRef inSendingListener,
                                          void* inSendingObject,
                                          const AudioUnitParameter* inParameter,
                                          AudioUnitParameterValue inValue,
                                          UInt32 inBufferOffsetInFrames);

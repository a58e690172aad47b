#pragma once

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/CoreFoundation.h"
#include "audio_unit/Export.h"

/// Listening to parameters and properties of units.
///
/// - Callbacks happen on the thread whose run loop the listener was created with, when that run
/// loop
///   is pumped, whatever thread made the change. Making a change never blocks and never allocates.
/// - A parameter's value changes reach a registered object at most once per notification interval,
///   with the newest value: the first after a quiet interval at the next pump, later ones when the
///   interval since the last callback has passed. Gesture and property events are delivered one by
///   one, in order; they do not wait for values.
/// - Registrations that match one event are called in the order in which they were made, and hear
/// of
///   no change that was made before them.
/// - The sender that `AUParameterSet` or `AUEventListenerNotify` names is not called back: with a
///   sending object only that object of the sending listener, with a null object the whole
///   listener. If somebody else's change of the same parameter still waits for it, it is called for
///   that, with the newest value.
/// - After `AUListenerDispose` nothing arrives, not even what was waiting. A listener may be
/// disposed
///   of inside its own callback or another's.
/// - Nothing is lost silently. 4,096 changes can wait in a run loop; if more are made before it is
///   pumped, the next pump announces every registered parameter, with the value read from the unit,
///   every registered property and every registered end of a gesture anew, to all and without a
///   sender. A begin of a gesture that found no room is not repeated.
///
/// Create, register and dispose on the listener's own thread; set and notify on any thread. A null
/// listener, event, parameter or result pointer gives `kAudio_ParamError`, a null unit
/// `kAudioUnitErr_InvalidElement`.

using AUEventListenerRef = audio_unit::EventListener*;
using AUParameterListenerRef = AUEventListenerRef;

/// `inEventHostTime` is when the (newest) change was made: steady clock, nanoseconds. For an event
/// that an overflow caused it is the time of the pump. `inParameterValue` is the parameter's newest
/// value, 0 for an event that is no value change.
using AUEventListenerProc = void (*)(void* inUserData, void* inObject,
                                     const AudioUnitEvent* inEvent, UInt64 inEventHostTime,
                                     AudioUnitParameterValue inParameterValue);

/// `inNotificationInterval` and `inValueChangeGranularity` are in seconds, 0 to 3,600. All changes
/// of a parameter that wait are merged into one, however far apart they are, so the granularity
/// changes nothing. `inRunLoopMode` has to be `kCFRunLoopCommonModes`. An error leaves
/// `outListener` as it was.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData,
                                                 CFRunLoopRef inRunLoop, CFStringRef inRunLoopMode,
                                                 Float32 inNotificationInterval,
                                                 Float32 inValueChangeGranularity,
                                                 AUEventListenerRef* outListener);

/// Registers `inObject`, which is only handed back and may be null, for one event. Registering the
/// same pair again changes nothing. The registration ends with the unit.
AUDIO_UNIT_EXPORT OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener,
                                                       void* inObject,
                                                       const AudioUnitEvent* inEvent);

/// The reference is invalid from then on.
AUDIO_UNIT_EXPORT OSStatus AUListenerDispose(AUParameterListenerRef inListener);

/// Tells everyone registered for the event, except the named sender. The value of a value change is
/// read from the unit; if that fails, its status is returned and nobody is told.
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

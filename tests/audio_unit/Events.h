#pragma once

#include <string>

#include "FakeUnit.h"
#include "audio_unit/Framework.h"

// Short ways to make events and to describe them in expectations.

inline AudioUnitEvent parameterEvent(AudioUnitEventType type, AudioUnit unit,
                                     AudioUnitParameterID id,
                                     AudioUnitScope scope = kAudioUnitScope_Global,
                                     AudioUnitElement element = 0) {
  AudioUnitEvent event{type, {}};
  event.mArgument.mParameter = {unit, id, scope, element};
  return event;
}

inline AudioUnitEvent valueOf(AudioUnit unit, AudioUnitParameterID id) {
  return parameterEvent(kAudioUnitEvent_ParameterValueChange, unit, id);
}

inline AudioUnitEvent beginOf(AudioUnit unit, AudioUnitParameterID id) {
  return parameterEvent(kAudioUnitEvent_BeginParameterChangeGesture, unit, id);
}

inline AudioUnitEvent endOf(AudioUnit unit, AudioUnitParameterID id) {
  return parameterEvent(kAudioUnitEvent_EndParameterChangeGesture, unit, id);
}

inline AudioUnitEvent propertyOf(AudioUnit unit, AudioUnitPropertyID id,
                                 AudioUnitScope scope = kAudioUnitScope_Global,
                                 AudioUnitElement element = 0) {
  AudioUnitEvent event{kAudioUnitEvent_PropertyChange, {}};
  event.mArgument.mProperty = {unit, id, scope, element};
  return event;
}

/// "value 0 = 3", "begin 0", "end 0" or "property 5301".
inline std::string describe(const AudioUnitEvent& event, float value) {
  const std::string id = std::to_string(event.mArgument.mParameter.mParameterID);
  switch (event.mEventType) {
    case kAudioUnitEvent_ParameterValueChange: {
      const std::string number = std::to_string(value);
      return "value " + id + " = " + number.substr(0, number.find('.'));
    }
    case kAudioUnitEvent_BeginParameterChangeGesture:
      return "begin " + id;
    case kAudioUnitEvent_EndParameterChangeGesture:
      return "end " + id;
    case kAudioUnitEvent_PropertyChange:
      return "property " + std::to_string(event.mArgument.mProperty.mPropertyID);
  }
  return "unknown";
}

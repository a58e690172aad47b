#pragma once

#include "audio_unit/Framework.h"

namespace velk {

/// The view's event listener callback: passes the event to the view, which is `inUserData`.
/// Exceptions are logged and go no further.
void ConverterEventListenerDispatcher(void* inUserData, void* inObject,
                                      const AudioUnitEvent* inEvent, UInt64 inEventHostTime,
                                      AudioUnitParameterValue inParameterValue);

}  // namespace velk

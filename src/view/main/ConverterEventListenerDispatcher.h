#pragma once

#include "audio_unit/Framework.h"

namespace velk {

/// The view's event listener callback: hands the event to the view, which is the user data. An
/// exception ends here, in the log.
void ConverterEventListenerDispatcher(void* inUserData, void* inObject,
                                      const AudioUnitEvent* inEvent, UInt64 inEventHostTime,
                                      AudioUnitParameterValue inParameterValue);

}  // namespace velk

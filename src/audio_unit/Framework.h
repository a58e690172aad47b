#pragma once

/// Everything a view or a host uses of the Audio Unit framework: the system's own on macOS, this
/// library's replacement elsewhere.
#ifdef __APPLE__
#include <AudioToolbox/AudioToolbox.h>
#include <CoreFoundation/CoreFoundation.h>
#else
#include "audio_unit/AUEventListener.h"
#include "audio_unit/AudioUnitProperties.h"
#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/CoreFoundation.h"
#endif

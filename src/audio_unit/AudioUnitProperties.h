#pragma once

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/Export.h"

/// Access to a unit's parameters and properties. Each call returns the unit's own status;
/// a null unit gives `kAudioUnitErr_InvalidElement`, a null pointer to a result or to data that are
/// not empty `kAudio_ParamError`. Any thread that the unit itself allows.

/// Reads one parameter into `outValue`, which an error leaves as it was.
AUDIO_UNIT_EXPORT OSStatus AudioUnitGetParameter(AudioUnit inUnit, AudioUnitParameterID inID,
                                                 AudioUnitScope inScope, AudioUnitElement inElement,
                                                 AudioUnitParameterValue* outValue);

/// Writes one parameter and tells no listener; `AUParameterSet` does both.
AUDIO_UNIT_EXPORT OSStatus AudioUnitSetParameter(AudioUnit inUnit, AudioUnitParameterID inID,
                                                 AudioUnitScope inScope, AudioUnitElement inElement,
                                                 AudioUnitParameterValue inValue,
                                                 UInt32 inBufferOffsetInFrames);

/// Reads one property. `ioDataSize` is the size of `outData` in bytes and becomes the size written;
/// an error leaves it as it was.
AUDIO_UNIT_EXPORT OSStatus AudioUnitGetProperty(AudioUnit inUnit, AudioUnitPropertyID inID,
                                                AudioUnitScope inScope, AudioUnitElement inElement,
                                                void* outData, UInt32* ioDataSize);

/// Writes one property of `inDataSize` bytes. The unit announces the change itself.
AUDIO_UNIT_EXPORT OSStatus AudioUnitSetProperty(AudioUnit inUnit, AudioUnitPropertyID inID,
                                                AudioUnitScope inScope, AudioUnitElement inElement,
                                                const void* inData, UInt32 inDataSize);

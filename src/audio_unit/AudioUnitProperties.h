#pragma once

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/Export.h"

/// Access to a unit's parameters and properties. Each call returns the unit's own status. A null
/// unit gives `kAudioUnitErr_InvalidElement`; a null result pointer, or null data of a size above
/// 0, gives `kAudio_ParamError`. May be called on any thread that the unit allows.

/// Reads one parameter into `outValue`, which is unchanged on an error.
AUDIO_UNIT_EXPORT OSStatus AudioUnitGetParameter(AudioUnit inUnit, AudioUnitParameterID inID,
                                                 AudioUnitScope inScope, AudioUnitElement inElement,
                                                 AudioUnitParameterValue* outValue);

/// Writes one parameter without announcing it to listeners; `AUParameterSet` does both.
AUDIO_UNIT_EXPORT OSStatus AudioUnitSetParameter(AudioUnit inUnit, AudioUnitParameterID inID,
                                                 AudioUnitScope inScope, AudioUnitElement inElement,
                                                 AudioUnitParameterValue inValue,
                                                 UInt32 inBufferOffsetInFrames);

/// Reads one property. `ioDataSize` holds the size of `outData` in bytes and receives the size
/// written; it is unchanged on an error.
AUDIO_UNIT_EXPORT OSStatus AudioUnitGetProperty(AudioUnit inUnit, AudioUnitPropertyID inID,
                                                AudioUnitScope inScope, AudioUnitElement inElement,
                                                void* outData, UInt32* ioDataSize);

/// Writes one property of `inDataSize` bytes. Announcing the change is up to the unit.
AUDIO_UNIT_EXPORT OSStatus AudioUnitSetProperty(AudioUnit inUnit, AudioUnitPropertyID inID,
                                                AudioUnitScope inScope, AudioUnitElement inElement,
                                                const void* inData, UInt32 inDataSize);

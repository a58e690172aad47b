#include "audio_unit/AudioUnitProperties.h"

#include "audio_unit/Unit.h"

OSStatus AudioUnitGetParameter(AudioUnit inUnit, AudioUnitParameterID inID, AudioUnitScope inScope,
                               AudioUnitElement inElement, AudioUnitParameterValue* outValue) {
  if (!inUnit) return kAudioUnitErr_InvalidElement;
  if (!outValue) return kAudio_ParamError;
  AudioUnitParameterValue value = *outValue;
  const OSStatus status = inUnit->getParameter(inID, inScope, inElement, value);
  if (status == noErr) *outValue = value;
  return status;
}

OSStatus AudioUnitSetParameter(AudioUnit inUnit, AudioUnitParameterID inID, AudioUnitScope inScope,
                               AudioUnitElement inElement, AudioUnitParameterValue inValue,
                               UInt32 inBufferOffsetInFrames) {
  if (!inUnit) return kAudioUnitErr_InvalidElement;
  return inUnit->setParameter(inID, inScope, inElement, inValue, inBufferOffsetInFrames);
}

OSStatus AudioUnitGetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, void* outData, UInt32* ioDataSize) {
  if (!inUnit) return kAudioUnitErr_InvalidElement;
  if (!outData || !ioDataSize) return kAudio_ParamError;
  UInt32 size = *ioDataSize;
  const OSStatus status = inUnit->getProperty(inID, inScope, inElement, outData, size);
  if (status == noErr) *ioDataSize = size;
  return status;
}

OSStatus AudioUnitSetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, const void* inData, UInt32 inDataSize) {
  if (!inUnit) return kAudioUnitErr_InvalidElement;
  if (!inData && inDataSize > 0) return kAudio_ParamError;
  return inUnit->setProperty(inID, inScope, inElement, inData, inDataSize);
}

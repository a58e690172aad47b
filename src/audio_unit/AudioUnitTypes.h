#pragma once

#include <cstdint>

#include "audio_unit/CoreFoundation.h"

/// Types, structures and constants with the framework's documented names and meanings.

using UInt32 = std::uint32_t;
using SInt32 = std::int32_t;
using UInt64 = std::uint64_t;
using Float32 = float;
using Float64 = double;
/// 0 is success; any other value is an error code.
using OSStatus = std::int32_t;

namespace audio_unit {
class Unit;
class EventListener;
}  // namespace audio_unit

using AudioUnit = audio_unit::Unit*;
using AudioUnitParameterID = UInt32;
using AudioUnitPropertyID = UInt32;
using AudioUnitScope = UInt32;
using AudioUnitElement = UInt32;
using AudioUnitParameterValue = Float32;

enum : OSStatus {
  noErr = 0,
  /// An argument is missing or out of range.
  kAudio_ParamError = -50,
  kAudioUnitErr_InvalidProperty = -10879,
  kAudioUnitErr_InvalidParameter = -10878,
  kAudioUnitErr_InvalidElement = -10877,
  kAudioUnitErr_InvalidScope = -10866,
  kAudioUnitErr_PropertyNotWritable = -10865,
  kAudioUnitErr_InvalidPropertyValue = -10851,
};

enum : AudioUnitScope {
  kAudioUnitScope_Global = 0,
  kAudioUnitScope_Input = 1,
  kAudioUnitScope_Output = 2,
};

enum : AudioUnitPropertyID {
  kAudioUnitProperty_ParameterInfo = 4,
  kAudioUnitProperty_StreamFormat = 8,
  /// Float64, seconds.
  kAudioUnitProperty_Latency = 12,
  /// UInt32, frames.
  kAudioUnitProperty_MaximumFramesPerSlice = 14,
  kAudioUnitProperty_FactoryPresets = 24,
  kAudioUnitProperty_PresentPreset = 36,
  /// UInt32, non-zero while the host renders faster or slower than real time.
  kAudioUnitProperty_OfflineRender = 37,
};

struct AudioUnitParameter {
  AudioUnit mAudioUnit;
  AudioUnitParameterID mParameterID;
  AudioUnitScope mScope;
  AudioUnitElement mElement;
};

struct AudioUnitProperty {
  AudioUnit mAudioUnit;
  AudioUnitPropertyID mPropertyID;
  AudioUnitScope mScope;
  AudioUnitElement mElement;
};

enum AudioUnitEventType : UInt32 {
  kAudioUnitEvent_ParameterValueChange = 0,
  kAudioUnitEvent_BeginParameterChangeGesture = 1,
  kAudioUnitEvent_EndParameterChangeGesture = 2,
  kAudioUnitEvent_PropertyChange = 3,
};

struct AudioUnitEvent {
  AudioUnitEventType mEventType;
  union {
    AudioUnitParameter mParameter;
    AudioUnitProperty mProperty;
  } mArgument;
};

enum AudioUnitParameterUnit : UInt32 {
  kAudioUnitParameterUnit_Generic = 0,
  kAudioUnitParameterUnit_Indexed = 1,
};

enum : UInt32 {
  kAudioUnitParameterFlag_IsReadable = 1U << 30U,
  kAudioUnitParameterFlag_IsWritable = 1U << 31U,
};

struct AudioUnitParameterInfo {
  char name[52];
  CFStringRef unitName;
  UInt32 clumpID;
  CFStringRef cfNameString;
  AudioUnitParameterUnit unit;
  AudioUnitParameterValue minValue;
  AudioUnitParameterValue maxValue;
  AudioUnitParameterValue defaultValue;
  UInt32 flags;
};

struct AUPreset {
  SInt32 presetNumber;
  CFStringRef presetName;
};

enum : UInt32 {
  kAudioFormatLinearPCM = 0x6C70636D,  // 'lpcm'
  kAudioFormatFlagIsFloat = 1U << 0U,
  kAudioFormatFlagIsPacked = 1U << 3U,
  kAudioFormatFlagIsNonInterleaved = 1U << 5U,
};

struct AudioStreamBasicDescription {
  Float64 mSampleRate;
  UInt32 mFormatID;
  UInt32 mFormatFlags;
  UInt32 mBytesPerPacket;
  UInt32 mFramesPerPacket;
  UInt32 mBytesPerFrame;
  UInt32 mChannelsPerFrame;
  UInt32 mBitsPerChannel;
  UInt32 mReserved;
};

static_assert(sizeof(AudioStreamBasicDescription) == 40);
static_assert(sizeof(AUPreset) == 16);

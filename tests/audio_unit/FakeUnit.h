#pragma once

#include <array>
#include <atomic>

#include "audio_unit/Unit.h"

/// A unit with eight parameters, at any scope and element, and no properties. Any thread.
class FakeUnit : public audio_unit::Unit {
 public:
  using Unit::announceParameter;
  using Unit::announceProperty;

  std::array<std::atomic<float>, 8> values{};
  /// What every read and write of a parameter returns. With an error nothing is read or written.
  std::atomic<OSStatus> status{noErr};
  std::atomic<int> reads{0};

  OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue& value) override {
    ++reads;
    if (status != noErr) return status;
    if (id >= values.size()) return kAudioUnitErr_InvalidParameter;
    value = values[id];
    return noErr;
  }
  OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue value, UInt32) override {
    if (status != noErr) return status;
    if (id >= values.size()) return kAudioUnitErr_InvalidParameter;
    values[id] = value;
    return noErr;
  }
  OSStatus getProperty(AudioUnitPropertyID, AudioUnitScope, AudioUnitElement, void*,
                       UInt32&) override {
    return kAudioUnitErr_InvalidProperty;
  }
  OSStatus setProperty(AudioUnitPropertyID, AudioUnitScope, AudioUnitElement, const void*,
                       UInt32) override {
    return kAudioUnitErr_InvalidProperty;
  }
};

#pragma once

#include <type_traits>
#include <utility>

#include "audio_unit/Framework.h"

/// Typed access to a unit's properties, over the framework's functions: whoever names a property
/// names the type of its data with it.
namespace audio_unit {

/// Identifier of a property, the type of its data, and the scope on which it is read and written.
/// Stands for the plain identifier wherever one is asked for, as in an event or after `case`.
template <class Data>
struct Property {
  static_assert(std::is_trivially_copyable_v<Data>);

  AudioUnitPropertyID id;
  AudioUnitScope scope = kAudioUnitScope_Global;

  constexpr operator AudioUnitPropertyID() const { return id; }
};

inline constexpr Property<AudioUnitParameterInfo> parameterInfoProperty{
    kAudioUnitProperty_ParameterInfo};
inline constexpr Property<AudioStreamBasicDescription> outputFormatProperty{
    kAudioUnitProperty_StreamFormat, kAudioUnitScope_Output};
/// Seconds.
inline constexpr Property<Float64> latencyProperty{kAudioUnitProperty_Latency};
/// Frames.
inline constexpr Property<UInt32> maximumFramesProperty{kAudioUnitProperty_MaximumFramesPerSlice};
/// An array of `AUPreset`, which the reader releases; `FactoryPresets` does.
inline constexpr Property<CFArrayRef> factoryPresetsProperty{kAudioUnitProperty_FactoryPresets};
/// Whoever reads it releases the name.
inline constexpr Property<AUPreset> presentPresetProperty{kAudioUnitProperty_PresentPreset};
/// Non-zero while rendering need not keep pace with a clock.
inline constexpr Property<UInt32> offlineRenderProperty{kAudioUnitProperty_OfflineRender};

/// Reads a property into `data` and returns the unit's status. `data` is the unit's to change: with
/// an error, or a unit that says `noErr` and gives less, what it did not write stays.
template <class Data>
OSStatus readPropertyInto(Data& data, AudioUnit unit, const Property<Data>& property,
                          AudioUnitElement element = 0) {
  UInt32 size = sizeof(Data);  // NOLINT(bugprone-sizeof-expression): may be a pointer
  return AudioUnitGetProperty(unit, property.id, property.scope, element, &data, &size);
}

/// A property's data as read, or the status with which the unit refused to tell.
template <class Data>
class Reading {
 public:
  Reading(AudioUnit unit, const Property<Data>& property, AudioUnitElement element)
      : status_(readPropertyInto(data_, unit, property, element)) {}

  OSStatus status() const { return status_; }
  explicit operator bool() const { return status_ == noErr; }
  /// Only without an error.
  const Data& operator*() const { return data_; }
  const Data* operator->() const { return &data_; }
  Data valueOr(Data fallback) const { return status_ == noErr ? data_ : std::move(fallback); }

 private:
  Data data_{};
  OSStatus status_;
};

template <class Data>
Reading<Data> readProperty(AudioUnit unit, const Property<Data>& property,
                           AudioUnitElement element = 0) {
  return {unit, property, element};
}

/// Writes a property and returns the unit's status.
template <class Data>
OSStatus writeProperty(AudioUnit unit, const Property<Data>& property,
                       const std::type_identity_t<Data>& data, AudioUnitElement element = 0) {
  return AudioUnitSetProperty(unit, property.id, property.scope, element, &data, sizeof(Data));
}

}  // namespace audio_unit

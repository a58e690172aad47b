#pragma once

#include <array>
#include <atomic>

#include "converter/codec/Setting.h"

namespace converter {

/// The unit's three parameters, kept bit for bit as they were written, and the encoder's setting
/// that follows from them. Any thread may
/// write and read; nothing waits for another thread.
class Parameters {
 public:
  /// Publishes into `setting`, here and after every write, what the encoder should do.
  Parameters(const UnitFormat& unit, const velk::EncoderSetting& values,
             std::atomic<Setting>& setting);

  static bool has(AudioUnitParameterID id) { return id < kCount; }

  /// Of a parameter that there is.
  float value(AudioUnitParameterID id) const;
  void setValue(AudioUnitParameterID id, float value);

  /// What the parameters ask for.
  velk::EncoderSetting values() const;
  /// Writes all three; no setting in between is published.
  void setValues(const velk::EncoderSetting& values);

  /// What the encoder should do about the values as they are now.
  Setting setting() const { return nearestSetting(values(), unit_, abilities_); }
  /// The highest value of the format parameter.
  Format highestFormat() const;

 private:
  static constexpr AudioUnitParameterID kCount = 3;

  void publish();

  UnitFormat unit_;
  EncoderAbilities abilities_;
  std::array<std::atomic<float>, kCount> values_{};
  std::atomic<UInt32> writes_{0};
  std::atomic<Setting>& setting_;
};

}  // namespace converter

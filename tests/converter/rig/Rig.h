#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <type_traits>

#include "Signals.h"
#include "WorkerGate.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"

/// How far the step of a cross-fade may pass the largest one of the two signals. The encoder that
/// stands in where FDK AAC is missing is so far from the source that fading to it adds a little.
inline float mostStep() {
  return converter::hasHighEfficiencyEncoder() ? 1.0F : 1.02F;
}

/// A unit with what tests do to it. Renders off line unless told otherwise, so that nothing depends
/// on the speed of the machine.
class Rig {
 public:
  explicit Rig(const converter::UnitFormat& format = {
                   .sampleRate = 44100, .channels = 2, .maximumFrames = 1024});

  ~Rig() { gate_.open(); }

  converter::ConverterUnit& unit() { return *unit_; }
  const converter::UnitFormat& format() const { return format_; }

  /// Fail the test when the unit refuses.
  void setParameter(AudioUnitParameterID id, float value);
  void setSetting(float format, float strategy, float rateOrQuality);
  void setPreset(SInt32 number);
  void setOffline(bool offline);
  void monitorSource(bool source);
  float parameter(AudioUnitParameterID id);

  template <typename Data>
  Data property(const audio_unit::Property<Data>& property, AudioUnitElement element = 0) {
    const auto reading = readProperty(unit_.get(), property, element);
    EXPECT_EQ(reading.status(), noErr);
    return *reading;
  }
  template <typename Data>
  void setProperty(const audio_unit::Property<Data>& property,
                   const std::type_identity_t<Data>& data) {
    ASSERT_EQ(writeProperty(unit_.get(), property, data), noErr);
  }
  UInt64 missedFrames() { return property(converter::kConverterProperty_MissedFrames); }

  /// Renders the input in blocks of `block` frames; the output as it comes, delayed.
  Signal render(const Signal& input, std::size_t block = 512);
  /// In blocks as long as `nextBlock` says, which is called before every block with its position in
  /// the input.
  Signal renderInBlocks(const Signal& input,
                        const std::function<std::size_t(std::size_t)>& nextBlock);
  /// Renders without waiting for the worker, which is held back so that it cannot keep up, and has
  /// it change its encoder all the time.
  Signal renderTooFast(const Signal& input);
  /// Renders the input and enough silence behind it; the output without the latency, as long as the
  /// input.
  Signal renderAligned(const Signal& input, std::size_t block = 512);

 private:
  converter::UnitFormat format_;
  WorkerGate gate_;
  std::unique_ptr<converter::ConverterUnit> unit_;
};

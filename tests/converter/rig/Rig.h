#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <type_traits>

#include "Signals.h"
#include "WorkerGate.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"

/// The largest step allowed in a cross-fade, relative to the largest step of its two signals. The
/// encoder used without FDK AAC is so far from the source that fading to it adds a little.
inline float mostStep() {
  return converter::hasHighEfficiencyEncoder() ? 1.0F : 1.02F;
}

/// A unit with the operations that tests need. Renders offline unless told otherwise, so that
/// nothing depends on the machine's speed.
class Rig {
 public:
  explicit Rig(const converter::UnitFormat& format = {.sampleRate = 44100,
                                                      .channels = 2,
                                                      .maximumFrames = 1024},
               realtime::ReadClock readClock = alwaysLate());

  /// The clock of a host that asks for nothing ahead of time, however fast the test renders.
  static realtime::ReadClock alwaysLate();

  ~Rig() { gate_.open(); }

  converter::ConverterUnit& unit() { return *unit_; }
  const converter::UnitFormat& format() const { return format_; }

  /// These fail the test when the unit returns an error.
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

  /// Renders the input in blocks of `block` frames; returns the output with its latency.
  Signal render(const Signal& input, std::size_t block = 512);
  /// The same in blocks of varying length: `nextBlock` is called before each block with its
  /// position in the input and returns its length.
  Signal renderInBlocks(const Signal& input,
                        const std::function<std::size_t(std::size_t)>& nextBlock);
  /// Renders without waiting for the worker, which is held back so that it cannot keep up, and
  /// changes the encoder's setting all the time.
  Signal renderTooFast(const Signal& input);
  /// Lets the worker finish nothing any more, for as long as the rig exists.
  void holdWorker() { gate_.close(); }
  /// Renders with a worker that stands still now and then, always at the same places.
  Signal renderInGaps(const Signal& input);
  /// Renders the input followed by enough silence; returns the output without its latency, as long
  /// as the input.
  Signal renderAligned(const Signal& input, std::size_t block = 512);

 private:
  converter::UnitFormat format_;
  WorkerGate gate_;
  std::unique_ptr<converter::ConverterUnit> unit_;
};

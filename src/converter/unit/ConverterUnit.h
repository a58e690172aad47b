#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "audio_unit/Unit.h"
#include "contract/ConverterExtensions.h"
#include "contract/ConverterInterface.h"
#include "converter/codec/BitStreamSink.h"
#include "converter/codec/UnitFormat.h"
#include "realtime/ReadClock.h"

namespace converter {

/// Encodes the audio passing through it to AAC and decodes it again at once. Source and encoded
/// signal come out sample-aligned, delayed by one constant latency.
///
/// One thread (with a view, the main one), but `render` on the audio thread and parameters on any;
/// also while `render` runs, unless an operation says otherwise. Parameters read back as written.
class ConverterUnit : public audio_unit::Unit {
 public:
  /// Throws `std::invalid_argument` for a format that the unit does not do, naming what is wrong,
  /// and `std::runtime_error` when a codec cannot be opened.
  static std::unique_ptr<ConverterUnit> make(const UnitFormat& format);
  /// The same with another clock to tell who asks ahead of time, for hosts that keep their own.
  static std::unique_ptr<ConverterUnit> make(const UnitFormat& format,
                                             realtime::ReadClock readClock);

  /// Delay from input to output, whatever the setting and the monitored signal. Samples.
  virtual UInt32 latency() const = 0;

  /// Processes one block: `frames` samples from 1 to `maximumFrames`, of `channels` planes each.
  /// Input and output may be the same planes. Audio thread; never allocates or locks. It waits for
  /// the codec with `kAudioUnitProperty_OfflineRender` set, and for a caller who asks ahead of the
  /// clock, as a device does that fills a large buffer at once: at most half as long as the audio
  /// that the caller is ahead, and not at all when that is less than 20 ms. So in strict real time
  /// it never waits.
  virtual void render(const float* const* input, float* const* output, UInt32 frames) noexcept = 0;

  /// Forgets the audio inside (after a seek): codec and rings, never the statistics. Not while
  /// `render` runs.
  virtual void reset() = 0;

  /// Tells the meters at the end of all audio that silence follows, so that what the waveform does
  /// around the last samples counts too. Not while `render` runs.
  virtual void finish() {}

  /// Waits until the codec has done all that it was given: the bit rate, the failures and what a
  /// bit-stream sink has been shown are then those of all audio so far. Not while `render` runs.
  virtual void waitForCodec() {}

  /// Shows the access units to `sink` from now on, which has to outlive the unit or be taken away
  /// again with null; there is none at first. Does what `reset` does, so that the first unit shown
  /// is the first of the audio. Not while `render` runs. A unit that has no bit stream ignores it.
  virtual void setBitStreamSink(BitStreamSink* /*sink*/) {}
};

/// Whether this build can encode AAC HE and HEv2. Without it the format parameter's maximum is 0.0.
bool hasHighEfficiencyEncoder();

}  // namespace converter

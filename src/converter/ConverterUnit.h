#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "audio_unit/Unit.h"
#include "contract/ConverterInterface.h"
#include "converter/BitStreamSink.h"

namespace converter {

/// Properties of this unit beyond the contract with the view; global scope, element 0, read only
/// but for the last.
inline constexpr AudioUnitPropertyID kConverterProperty_EffectiveSetting = 5310;
inline constexpr AudioUnitPropertyID kConverterProperty_BitRate = 5311;
/// UInt64: frames of encoded signal that came too late since the unit was made, or that no codec
/// could be opened for, and were silence.
inline constexpr AudioUnitPropertyID kConverterProperty_MissedFrames = 5312;
/// UInt64: codecs that could not be opened since the unit was made, and access units that could not
/// be made or decoded. 0 as long as all is well.
inline constexpr AudioUnitPropertyID kConverterProperty_CodecFailures = 5313;
/// UInt32, may be written: 0 while what the unit renders is not metered, because nobody hears it
/// and it only leads up to what follows, as before the place that a player was sent to;
/// otherwise 1.
inline constexpr AudioUnitPropertyID kConverterProperty_Metering = 5314;

/// Data of `kConverterProperty_EffectiveSetting`: the setting really used, which is the nearest
/// that works where the parameters ask for one that the encoder cannot do at this rate and channel
/// count. Where the codec could not be opened in mid-play, the one that goes on in its place.
struct EffectiveSetting {
  UInt32 format;
  UInt32 strategy;
  /// ABR: the encoder's target. VBRC: the peak rate. VBR: 0. bit/s.
  UInt32 bitRate;
  /// VBR: the encoder's mode, 1 to 5. Otherwise 0.
  UInt32 vbrMode;
};

/// Data of `kConverterProperty_BitRate`: bits of the access units, without any transport.
struct BitRate {
  /// Over the last seconds, kbit/s; 0 before the first access unit.
  Float32 recentKbps;
  /// Since the last change of setting or reset of the unit, kbit/s; 0 before the first access unit.
  Float32 averageKbps;
};

struct UnitFormat {
  /// 32000, 44100, 48000, 88200, 96000, 176400 or 192000 Hz. AAC knows none above 96000: the codec
  /// then works at half the rate, and only the source keeps what lies above.
  double sampleRate = 48000;
  /// 1 or 2.
  UInt32 channels = 2;
  /// The largest block that `render` will be given, 1 to 8192 frames.
  UInt32 maximumFrames = 4096;
};

/// Encodes the audio passing through it to AAC and decodes it again at once. Source and encoded
/// signal come out sample-aligned, delayed by one constant latency.
///
/// `render` runs on the audio thread; `reset` and everything of `Unit` on the main thread, also
/// while `render` runs, and parameters on any thread. Parameters read back as written.
class ConverterUnit : public audio_unit::Unit {
 public:
  /// Throws `std::invalid_argument` for a format that the unit does not do, naming what is wrong,
  /// and `std::runtime_error` when a codec cannot be opened.
  static std::unique_ptr<ConverterUnit> make(const UnitFormat& format);

  /// Delay from input to output, whatever the setting and the monitored signal. Samples.
  virtual UInt32 latency() const = 0;

  /// Processes one block: `frames` samples from 1 to `maximumFrames`, of `channels` planes each.
  /// Input and output may be the same planes. Audio thread; never allocates, locks or blocks,
  /// except that with `kAudioUnitProperty_OfflineRender` set it waits for the codec.
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

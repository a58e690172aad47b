#pragma once

#include <cstdint>
#include <span>

#include "audio_unit/AudioUnitTypes.h"

namespace converter {

/// A run of access units that one encoder makes, and what decoding them takes.
struct BitStream {
  /// AudioSpecificConfig (ISO/IEC 14496-3). Valid during the call.
  std::span<const std::uint8_t> configuration;
  /// Of the signal that the encoder was given and that a decoder gives, Hz: the unit's, or half of
  /// it above 96 kHz.
  double sampleRate;
  UInt32 channels;
  /// Samples per channel that every access unit holds: 1024 or 2048.
  UInt32 frameLength;
};

struct AccessUnit {
  /// Without any transport. Valid during the call.
  std::span<const std::uint8_t> bytes;
  /// Place in the source, in samples at the stream's rate counted from the last reset, of the first
  /// of the `frameLength` samples that a decoder gives for this unit. A stream starts with units of
  /// run-up, which lie before the stretch that it is for and which a decoder needs; in the first
  /// stream after a reset their positions are negative.
  std::int64_t position;
};

/// Is shown the very bits that the encoded signal is decoded from. Called on the unit's worker
/// thread, in order; what takes long makes the encoded signal late. Nothing may be thrown.
///
/// Off line, all units of the encoded signal that `render` has put out have been shown, and perhaps
/// some more. Once the sink has been taken away nothing is shown any more, so that other threads
/// may look at what it has kept.
class BitStreamSink {
 public:
  BitStreamSink() = default;
  BitStreamSink(const BitStreamSink&) = delete;
  BitStreamSink& operator=(const BitStreamSink&) = delete;
  virtual ~BitStreamSink() = default;

  /// Another encoder has begun, because the audio did or the setting has changed. The units of the
  /// one before end here, although a cross-fade still uses some more.
  virtual void streamBegan(const BitStream& stream) noexcept = 0;

  /// The next unit, `frameLength` behind the last one; only a unit that the encoder failed to make
  /// is left out.
  virtual void accessUnitMade(const AccessUnit& unit) noexcept = 0;
};

}  // namespace converter

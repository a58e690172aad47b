#pragma once

#include <cstdint>
#include <span>

#include "audio_unit/AudioUnitTypes.h"

namespace converter {

/// A run of access units from one encoder, and what is needed to decode them.
struct BitStream {
  /// AudioSpecificConfig (ISO/IEC 14496-3). Valid during the call.
  std::span<const std::uint8_t> configuration;
  /// Rate at which the codec runs, Hz: the unit's, or half of it above 96 kHz.
  double sampleRate;
  UInt32 channels;
  /// Samples per channel in each access unit: 1024 or 2048.
  UInt32 frameLength;
};

struct AccessUnit {
  /// Raw, without a transport. Valid during the call.
  std::span<const std::uint8_t> bytes;
  /// Position in the source of the first of the `frameLength` samples that this unit decodes to, in
  /// samples at the stream's rate since the last reset. A stream starts with priming units, which a
  /// decoder needs and whose audio lies before the part that the stream is for; in the first stream
  /// after a reset their positions are negative.
  std::int64_t position;
};

/// Receives the very access units that the encoded signal is decoded from. Called in order on the
/// unit's worker thread; a slow sink makes the encoded signal late.
///
/// In an offline render the sink has received every unit of the encoded signal that `render` has
/// returned, and perhaps a few more. Once it has been detached from the unit it is not called
/// again, so other threads may then read what it has collected.
class BitStreamSink {
 public:
  BitStreamSink() = default;
  BitStreamSink(const BitStreamSink&) = delete;
  BitStreamSink& operator=(const BitStreamSink&) = delete;
  virtual ~BitStreamSink() = default;

  /// Starts the stream of another encoder, opened at the start of the audio or for a new setting.
  /// It ends the stream before, although the cross-fade still uses a few more of its units.
  virtual void startStream(const BitStream& stream) noexcept = 0;

  /// Takes the next unit, `frameLength` after the last one. Only units that the encoder failed to
  /// produce are left out.
  virtual void writeAccessUnit(const AccessUnit& unit) noexcept = 0;
};

}  // namespace converter

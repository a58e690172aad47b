#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "converter/codec/Setting.h"

namespace converter {

/// Delay and start-up of one encoder together with its decoder.
struct CodecTiming {
  /// Samples per access unit and channel: 1024 or 2048.
  UInt32 frameLength;
  /// Index, in the decoded signal, of the first sample that was encoded.
  UInt32 delay;
  /// Access units before the output of an encoder opened in mid-signal can be used.
  UInt32 primingFrames;
  /// Frames that the encoder takes in before its first access unit.
  UInt32 lookaheadFrames;
};

/// An AAC encoder without transport. One thread at a time.
class Encoder {
 public:
  Encoder() = default;
  Encoder(const Encoder&) = delete;
  Encoder& operator=(const Encoder&) = delete;
  virtual ~Encoder() = default;

  /// Encodes the next `frameLength` samples of each plane. Samples above full scale are clipped,
  /// and NaNs become silence. Returns the access unit, valid until the next call; it is empty
  /// during the `lookaheadFrames`, and after that only on failure.
  virtual std::span<const std::uint8_t> encode(const float* const* planes) = 0;

  /// The decoder's configuration (AudioSpecificConfig).
  virtual std::span<const std::uint8_t> configuration() const = 0;

  virtual CodecTiming timing() const = 0;
};

/// Throws `std::runtime_error` when the encoder refuses the setting or the format.
std::unique_ptr<Encoder> openEncoder(const Setting& setting, const UnitFormat& unit);

/// Opens a unit's encoders: `openEncoder`, or a test's replacement.
using OpenEncoder =
    std::function<std::unique_ptr<Encoder>(const Setting& setting, const UnitFormat& unit)>;

/// What the encoder in this build can do.
EncoderAbilities encoderAbilities();

}  // namespace converter

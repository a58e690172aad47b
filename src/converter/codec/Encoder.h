#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "converter/codec/Setting.h"

namespace converter {

/// When the samples of one encoder, decoded again, come out. All in samples.
struct CodecTiming {
  /// Samples per access unit and channel: 1024 or 2048.
  UInt32 frameLength;
  /// Place in the decoded signal of the first sample that was encoded.
  UInt32 delay;
  /// Access units after which an encoder that starts amid a signal gives that signal.
  UInt32 primingFrames;
  /// Frames that the encoder swallows before its first access unit.
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
  /// and those that are no number are silence. Returns the access unit, valid until the next call;
  /// it is empty during the `lookaheadFrames`, and later only after a failure.
  virtual std::span<const std::uint8_t> encode(const float* const* planes) = 0;

  /// The decoder's configuration (AudioSpecificConfig).
  virtual std::span<const std::uint8_t> configuration() const = 0;

  virtual CodecTiming timing() const = 0;
};

/// Throws `std::runtime_error` when the encoder refuses.
std::unique_ptr<Encoder> openEncoder(const Setting& setting, const UnitFormat& unit);

/// What opens a unit's encoders: `openEncoder`, or something in its place.
using OpenEncoder =
    std::function<std::unique_ptr<Encoder>(const Setting& setting, const UnitFormat& unit)>;

/// Of the encoder that this build has.
EncoderAbilities encoderAbilities();

}  // namespace converter

#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "converter/codec/UnitFormat.h"

namespace converter {

/// An AAC decoder with unclipped float output, so that overs survive. It adds no delay. One thread
/// at a time; every call may allocate.
class Decoder {
 public:
  Decoder() = default;
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  virtual ~Decoder() = default;

  /// Decodes one access unit to `frameLength` samples per plane, valid until the next call. Null
  /// when the unit cannot be decoded.
  virtual const float* const* decode(std::span<const std::uint8_t> accessUnit) = 0;
};

/// `configuration` is `Encoder::configuration()`. Throws `std::runtime_error` when the decoder
/// cannot be opened.
std::unique_ptr<Decoder> openDecoder(std::span<const std::uint8_t> configuration,
                                     const UnitFormat& unit, UInt32 frameLength);

}  // namespace converter

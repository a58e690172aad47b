#pragma once

#include <atomic>
#include <cstdint>

#include "contract/ConverterExtensions.h"
#include "contract/EncoderSetting.h"
#include "converter/codec/UnitFormat.h"

namespace converter {

using velk::Format;
using velk::Strategy;

/// A setting that the encoder can carry out, made from a `velk::EncoderSetting`, which is only what
/// the parameters ask for. Aligned so that threads can exchange it as one word.
struct alignas(8) Setting {
  /// bit/s. `abr` and `constrainedVbr`: what the stream averages. `vbr`: 0.
  std::uint32_t bitRate = 0;
  Format format = Format::lc;
  Strategy strategy = Strategy::abr;
  /// `vbr`: the encoder's mode, 1 to 5. Otherwise 0.
  std::uint8_t vbrMode = 0;
  /// In place of padding, whose bits would be indeterminate in an atomic comparison.
  std::uint8_t unused = 0;

  friend bool operator==(const Setting&, const Setting&) = default;
};
static_assert(sizeof(Setting) == 8 && std::atomic<Setting>::is_always_lock_free);

/// What an encoder offers beyond LC.
struct EncoderAbilities {
  bool highEfficiency = false;
};

/// Highest format available: `heV2` in stereo, `he` in mono, `lc` without high efficiency.
Format highestFormat(const EncoderAbilities& abilities, UInt32 channels);

/// The setting nearest to `asked` that the encoder can carry out. Values out of range are clamped,
/// and NaN becomes the lowest value; a rate that the format cannot do at this sample rate becomes
/// the nearest that it can.
Setting nearestSetting(const velk::EncoderSetting& asked, const UnitFormat& unit,
                       const EncoderAbilities& abilities);

/// The setting as hosts read it.
EffectiveSetting effectiveSetting(const Setting& setting);

}  // namespace converter

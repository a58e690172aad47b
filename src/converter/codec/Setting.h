#pragma once

#include <atomic>
#include <cstdint>

#include "contract/ConverterExtensions.h"
#include "converter/codec/UnitFormat.h"

namespace converter {

enum class Format : std::uint8_t { lc, he, heV2 };
enum class Strategy : std::uint8_t { abr, constrainedVbr, vbr };

/// One way to run the encoder; always one that it can do. Aligned so that threads can exchange it
/// as one word.
struct alignas(8) Setting {
  /// bit/s. `abr`: the target. `constrainedVbr`: the peak rate. `vbr`: 0.
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

/// The unit's three parameters as they were written.
struct ParameterValues {
  float format = 0;
  float strategy = 0;
  float rateOrQuality = 0;

  friend bool operator==(const ParameterValues&, const ParameterValues&) = default;
};

/// What an encoder offers beyond LC with ABR and VBR.
struct EncoderAbilities {
  bool highEfficiency = false;
  bool constrainedVbr = false;
};

/// Highest format available: `heV2` in stereo, `he` in mono, `lc` without high efficiency.
Format highestFormat(const EncoderAbilities& abilities, UInt32 channels);

/// The setting nearest to the parameters that the encoder can do. Values outside their codes, and
/// those that are no number, become the nearest code; a rate outside what the format can do at this
/// sample rate becomes the nearest rate inside.
Setting nearestSetting(const ParameterValues& values, const UnitFormat& unit,
                       const EncoderAbilities& abilities);

EffectiveSetting effectiveSetting(const Setting& setting);

}  // namespace converter

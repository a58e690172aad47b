#pragma once

#include <array>
#include <cstdint>

#include "converter/codec/Setting.h"

namespace converter {

/// Samples by their place in the source: 0 is the first sample after the unit was made or reset.
using Position = std::int64_t;

inline constexpr UInt32 kMaximumChannels = 2;

/// Blocks between the audio thread and the worker start at multiples of this, whatever blocks the
/// host renders in. The longest access unit, so that the worker is woken at most once per access
/// unit.
inline constexpr UInt32 kBlockFrames = 2048;

struct AudioBlock {
  Position position = 0;
  /// Of the first sample that is there; those before it in the block are missing.
  Position begin = 0;
  std::array<std::array<float, kBlockFrames>, kMaximumChannels> planes{};

  Position end() const { return position + kBlockFrames; }
};

/// A change of the encoder's setting from the sample at `position` on.
struct SettingChange {
  Position position;
  Setting setting;
};

}  // namespace converter

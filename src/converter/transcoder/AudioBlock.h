#pragma once

#include <array>
#include <cstdint>

#include "converter/codec/Setting.h"

namespace converter {

/// A sample's index in the source, at the rate in use; 0 is the first since the unit was made or
/// reset.
using Position = std::int64_t;

inline constexpr UInt32 kMaximumChannels = 2;

/// Length of the blocks between audio thread and worker, which start at multiples of it whatever
/// blocks the host renders. The longest access unit, so that there is at most one wake-up per unit.
inline constexpr UInt32 kBlockFrames = 2048;

struct AudioBlock {
  Position position = 0;
  /// Position of the first valid sample; those before it are missing.
  Position validFrom = 0;
  std::array<std::array<float, kBlockFrames>, kMaximumChannels> planes{};

  Position end() const { return position + kBlockFrames; }
};

/// A change of the encoder's setting, with effect from the sample at `position`.
struct SettingChange {
  Position position;
  Setting setting;
};

}  // namespace converter

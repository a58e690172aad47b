#pragma once

#include <algorithm>
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
  /// A bit for each `kGrain` frames in which the samples are not what the codec makes of the
  /// source: an access unit failed here or just before, or the codec was started in mid-play.
  std::uint64_t unsound = 0;
  std::array<std::array<float, kBlockFrames>, kMaximumChannels> planes{};

  static constexpr UInt32 kGrain = kBlockFrames / 64;

  Position end() const { return position + kBlockFrames; }
  /// Of the frame at `offset`.
  bool isSound(Position offset) const { return ((unsound >> (offset / kGrain)) & 1U) == 0; }
  /// Marks all that lies in [`from`, `to`), which may reach beyond the block.
  void markUnsound(Position from, Position to) {
    if (from >= to) return;
    const Position first = std::max<Position>(from - position, 0) / kGrain;
    const Position last = (std::min(to, end()) - position + kGrain - 1) / kGrain;
    for (Position grain = first; grain < last; ++grain) unsound |= std::uint64_t{1} << grain;
  }
};

/// A change of the encoder's setting, with effect from the sample at `position`.
struct SettingChange {
  Position position;
  Setting setting;
};

}  // namespace converter

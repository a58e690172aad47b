#pragma once

#include <cstddef>
#include <span>

namespace converter {

/// What a stretch of the encoded signal is.
enum class Soundness {
  /// What the codec makes of the source.
  sound,
  /// Audio that tells nothing of the codec: an access unit failed, or the codec has just been
  /// started in mid-play.
  unsound,
  /// Silence in place of what has not come in time.
  missing,
};

struct Stretch {
  std::size_t frames;
  Soundness soundness;
};

/// Stretches that follow each other without gaps.
using Stretches = std::span<const Stretch>;

}  // namespace converter

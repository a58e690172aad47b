#pragma once

#include <cstdint>

namespace host {

/// Gives a device its next block.
class BlockRenderer {
 public:
  virtual ~BlockRenderer() = default;
  /// Fills `frames` frames of every plane. Audio thread; never allocates, locks or blocks.
  virtual void renderBlock(float* const* planes, std::uint32_t frames) noexcept = 0;
};

/// Hears what a player gives to the device while it plays.
class AudioTap {
 public:
  virtual ~AudioTap() = default;
  /// Audio thread; never allocates, locks or blocks.
  virtual void hear(const float* const* planes, std::uint32_t frames) noexcept = 0;
};

}  // namespace host

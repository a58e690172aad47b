#pragma once

#include <cstdint>

namespace host {

/// Renders a device's next block.
class BlockRenderer {
 public:
  virtual ~BlockRenderer() = default;
  /// Fills `frames` frames of every plane. Audio thread; never allocates, locks or blocks.
  virtual void renderBlock(float* const* planes, std::uint32_t frames) noexcept = 0;
};

/// Receives a copy of what a player sends to the device.
class AudioTap {
 public:
  virtual ~AudioTap() = default;
  /// Audio thread; never allocates, locks or blocks.
  virtual void hear(const float* const* planes, std::uint32_t frames) noexcept = 0;
};

}  // namespace host

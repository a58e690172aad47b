#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/files/Resampler.h"
#include "host/playback/BlockRenderer.h"

namespace host {

/// Gives a device blocks at its own rate of what another renderer gives at another (soxr, very high
/// quality, linear phase).
class RateConvertingRenderer : public BlockRenderer {
 public:
  /// `format` is the renderer's, which has to outlive this one. Throws `Failure` when there is no
  /// resampler.
  RateConvertingRenderer(BlockRenderer& renderer, AudioFormat format, std::uint32_t deviceRate);

  void renderBlock(float* const* planes, std::uint32_t frames) noexcept override;

  /// Frames, at the renderer's rate, that it has given and the device has not been given yet. Any
  /// thread.
  std::uint32_t latency() const { return latency_.load(std::memory_order_relaxed); }

 private:
  void settle();
  /// How far what the resampler was given is ahead of what the device was given, in frames of the
  /// renderer.
  std::int64_t ahead() const;
  void resample() noexcept;
  void give(float* const* planes, std::uint32_t offset, std::uint32_t frames) noexcept;

  BlockRenderer& renderer_;
  AudioFormat format_;
  std::int64_t deviceRate_;
  Resampler resampler_;
  /// What the resampler is given next.
  std::array<std::vector<float>, 2> input_;
  /// What it has made and the device has not been given yet.
  std::array<std::vector<float>, 2> made_;
  std::size_t madeFrames_ = 0;
  /// Frames that the resampler was given, and that the device was, since it was made.
  std::int64_t fed_ = 0;
  std::int64_t given_ = 0;
  /// How far the first has to be ahead of the second for there always to be enough.
  std::int64_t lead_ = 0;
  std::atomic<std::uint32_t> latency_{0};
};

}  // namespace host

#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/files/Resampler.h"
#include "host/playback/BlockRenderer.h"

namespace host {

/// Converts another renderer's audio to a device's sample rate (soxr, very high quality, linear
/// phase).
class RateConvertingRenderer : public BlockRenderer {
 public:
  /// `format` is that of `renderer`, which must outlive this object. Throws `Failure` when no
  /// resampler can be made.
  RateConvertingRenderer(BlockRenderer& renderer, AudioFormat format, std::uint32_t deviceRate);

  void renderBlock(float* const* planes, std::uint32_t frames) noexcept override;

  /// Frames taken from the renderer and not yet given to the device, at the renderer's rate. Any
  /// thread.
  std::uint32_t latency() const { return latency_.load(std::memory_order_relaxed); }

 private:
  void settle();
  /// By how much the resampler's input is ahead of the device's output, in frames of the renderer.
  std::int64_t ahead() const;
  void resample() noexcept;
  void give(float* const* planes, std::uint32_t offset, std::uint32_t frames) noexcept;

  BlockRenderer& renderer_;
  AudioFormat format_;
  std::int64_t deviceRate_;
  Resampler resampler_;
  /// The resampler's next input.
  std::array<std::vector<float>, 2> input_;
  /// Its output that has not been given to the device yet.
  std::array<std::vector<float>, 2> made_;
  std::size_t madeFrames_ = 0;
  /// Frames given to the resampler and to the device, since the resampler was made.
  std::int64_t fed_ = 0;
  std::int64_t given_ = 0;
  /// The least `ahead()` with which there is always enough output.
  std::int64_t lead_ = 0;
  std::atomic<std::uint32_t> latency_{0};
};

}  // namespace host

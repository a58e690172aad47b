#include "host/playback/RateConvertingRenderer.h"

#include <soxr.h>

#include <algorithm>

namespace host {
namespace {

/// Frames per call of the resampler, always the same, so that neither its output nor its memory
/// depends on the device's blocks.
constexpr std::uint32_t kStep = 128;
/// The most frames to write to the device's block at a time.
constexpr std::uint32_t kLargestBlock = 512;
/// Room for 1/2 second, more than the resampler holds back at any ratio; from 192 to 8 kHz it is
/// 170 ms.
constexpr std::int64_t kBuffersPerSecond = 2;

}  // namespace

RateConvertingRenderer::RateConvertingRenderer(BlockRenderer& renderer, AudioFormat format,
                                               std::uint32_t deviceRate)
    : renderer_(renderer),
      format_(format),
      deviceRate_(deviceRate),
      resampler_(makeResampler(format, deviceRate, SampleLayout::Planes)) {
  for (std::uint32_t channel = 0; channel < format.channels; ++channel) {
    input_[channel].resize(kStep);
    made_[channel].resize(static_cast<std::size_t>(deviceRate_ / kBuffersPerSecond) +
                          kLargestBlock);
  }
  settle();
}

/// Runs a second of silence through the resampler: it allocates all the memory that it will ever
/// need, and shows how much it holds back.
void RateConvertingRenderer::settle() {
  std::int64_t most = 0;
  while (fed_ < format_.sampleRate) {
    resample();
    given_ += static_cast<std::int64_t>(madeFrames_);
    madeFrames_ = 0;
    most = std::max(most, ahead());
  }
  // Where its blocks and these steps align differently, it may hold back one step more.
  lead_ = most + kStep;
  while (ahead() < lead_) resample();
  latency_ = static_cast<std::uint32_t>(ahead());
}

std::int64_t RateConvertingRenderer::ahead() const {
  return fed_ - given_ * format_.sampleRate / deviceRate_;
}

void RateConvertingRenderer::resample() noexcept {
  std::array<const float*, 2> input{};
  std::array<float*, 2> output{};
  for (std::uint32_t channel = 0; channel < format_.channels; ++channel) {
    input[channel] = input_[channel].data();
    output[channel] = made_[channel].data() + madeFrames_;
  }
  std::size_t used = 0;
  std::size_t made = 0;
  soxr_process(static_cast<soxr_t>(resampler_.get()), static_cast<const void*>(input.data()), kStep,
               &used, static_cast<void*>(output.data()), made_[0].size() - madeFrames_, &made);
  fed_ += kStep;
  madeFrames_ += made;
}

void RateConvertingRenderer::renderBlock(float* const* planes, std::uint32_t frames) noexcept {
  for (std::uint32_t done = 0; done < frames;) {
    const auto count = std::min(frames - done, kLargestBlock);
    give(planes, done, count);
    done += count;
  }
  latency_.store(static_cast<std::uint32_t>(ahead()), std::memory_order_relaxed);
}

void RateConvertingRenderer::give(float* const* planes, std::uint32_t offset,
                                  std::uint32_t frames) noexcept {
  const std::array<float*, 2> input = {input_[0].data(), input_[1].data()};
  given_ += frames;
  while (ahead() < lead_) {
    renderer_.renderBlock(input.data(), kStep);
    resample();
  }
  const auto count = std::min<std::size_t>(frames, madeFrames_);
  for (std::uint32_t channel = 0; channel < format_.channels; ++channel) {
    auto& made = made_[channel];
    const auto rest = made.begin() + static_cast<std::ptrdiff_t>(count);
    std::copy(made.begin(), rest, planes[channel] + offset);
    std::fill(planes[channel] + offset + count, planes[channel] + offset + frames, 0.0F);
    std::copy(rest, made.begin() + static_cast<std::ptrdiff_t>(madeFrames_), made.begin());
  }
  madeFrames_ -= count;
}

}  // namespace host

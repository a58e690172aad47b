#include "host/files/ResampledSource.h"

#include <soxr.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kInputBlock = 4096;
/// Frames of the original that are run through the filter before the position that was asked for,
/// so that it has settled: longer than its impulse response at any ratio that occurs.
constexpr std::int64_t kPreRoll = 16384;

}  // namespace

ResampledSource::ResampledSource(std::unique_ptr<AudioSource> original, std::uint32_t sampleRate)
    : original_(std::move(original)),
      format_{sampleRate, original_->format().channels},
      frames_(0),
      inputStep_(0),
      outputStep_(0),
      input_(kInputBlock * format_.channels) {
  const std::int64_t from = original_->format().sampleRate;
  const std::int64_t to = sampleRate;
  const auto divisor = std::gcd(from, to);
  inputStep_ = from / divisor;
  outputStep_ = to / divisor;
  const auto steps = original_->frames() / inputStep_;
  const auto rest = original_->frames() % inputStep_;
  frames_ = steps * outputStep_ + (rest * outputStep_ + inputStep_ / 2) / inputStep_;
  frames_ = std::max<std::int64_t>(frames_, 1);
  restart();
}

ResampledSource::~ResampledSource() = default;

void ResampledSource::restart() {
  resampler_ = makeResampler(original_->format(), format_.sampleRate, SampleLayout::Interleaved);
  inputBegin_ = inputEnd_ = 0;
  inputEnded_ = false;
}

void ResampledSource::fill() {
  inputBegin_ = 0;
  inputEnd_ = original_->read(input_.data(), kInputBlock);
  inputEnded_ = inputEnd_ < kInputBlock;
}

std::size_t ResampledSource::read(float* interleaved, std::size_t frames) {
  const auto wanted = static_cast<std::size_t>(
      std::clamp<std::int64_t>(frames_ - position_, 0, static_cast<std::int64_t>(frames)));
  const auto resampler = static_cast<soxr_t>(resampler_.get());
  std::size_t done = 0;
  while (done < wanted) {
    if (inputBegin_ == inputEnd_ && !inputEnded_) fill();
    const bool flush = inputBegin_ == inputEnd_ && inputEnded_;
    std::size_t used = 0;
    std::size_t made = 0;
    soxr_process(resampler, flush ? nullptr : input_.data() + inputBegin_ * format_.channels,
                 inputEnd_ - inputBegin_, &used, interleaved + done * format_.channels,
                 wanted - done, &made);
    inputBegin_ += used;
    done += made;
    if (flush && made == 0) break;
  }
  position_ += static_cast<std::int64_t>(done);
  return done;
}

void ResampledSource::seek(std::int64_t frame) {
  frame = std::clamp<std::int64_t>(frame, 0, frames_);
  // The two grids coincide every `outputStep_` frames. A resampler started elsewhere would be off
  // this one.
  const auto preRollSteps = (kPreRoll + inputStep_ - 1) / inputStep_;
  const auto step = std::max<std::int64_t>(frame / outputStep_ - preRollSteps, 0);
  original_->seek(step * inputStep_);
  restart();
  position_ = step * outputStep_;
  std::vector<float> dropped(kInputBlock * format_.channels);
  while (position_ < frame) {
    const auto count = std::min<std::int64_t>(frame - position_, kInputBlock);
    if (read(dropped.data(), static_cast<std::size_t>(count)) == 0) break;
  }
  position_ = frame;
}

std::unique_ptr<AudioSource> atSampleRate(std::unique_ptr<AudioSource> source,
                                          std::uint32_t sampleRate) {
  if (source->format().sampleRate == sampleRate) return source;
  return std::make_unique<ResampledSource>(std::move(source), sampleRate);
}

}  // namespace host

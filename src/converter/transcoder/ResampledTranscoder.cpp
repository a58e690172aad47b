#include "converter/transcoder/ResampledTranscoder.h"

#include <algorithm>
#include <utility>

#include "converter/transcoder/Latency.h"

namespace converter {
namespace {

constexpr Position kRatio = 2;

/// Far above what the encoder clips at, so that no sound is changed.
constexpr float kLoudestSound = 4;

/// A single NaN or a number out of all proportion would silence the resampler's output for as long
/// as its filter is.
float toResamplable(float sample) {
  const float number = sample == sample ? sample : 0.0F;
  return std::clamp(number, -kLoudestSound, kLoudestSound);
}

}  // namespace

ResampledTranscoder::ResampledTranscoder(const UnitFormat& unit, OpenEncoder open)
    : channels_(unit.channels),
      behind_(converter::encodedBehindSource(unit)),
      codec_(codecFormat(unit), std::move(open)),
      down_(RateChange::Direction::halve, unit.channels, kBlockFrames),
      up_(RateChange::Direction::doubleUp, unit.channels, kBlockFrames) {}

void ResampledTranscoder::process(const SourceBlock& source, AudioBlock& encoded) {
  if (expected_ != source.audio.position) restart(source);
  expected_ = source.audio.end();
  if (source.change) {
    const Position halved = (source.change->position + kRatio - 1) / kRatio;
    changes_.push_back({halved, source.change->setting});
  }
  std::array<const float*, kMaximumChannels> input{};
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    std::ranges::transform(source.audio.planes[channel], resamplable_[channel].begin(),
                           toResamplable);
    input[channel] = resamplable_[channel].data();
  }
  const std::size_t frames = down_.process(input, kBlockFrames);
  takeHalved(std::array{down_.plane(0), down_.plane(channels_ - 1)}.data(), frames);
  encoded.position = source.audio.position - behind_;
  writeEncoded(encoded);
}

void ResampledTranscoder::clear() {
  expected_.reset();
  codec_.clear();
}

/// The codec's blocks lie on the grid of its own rate, so the first one may start with silence.
void ResampledTranscoder::restart(const SourceBlock& source) {
  codec_.clear();
  down_.clear();
  up_.clear();
  changes_.clear();
  start_ = source.audio.position;
  const Position start = start_ / kRatio;
  halved_.setting = source.setting;
  halved_.audio.position = start - start % kBlockFrames;
  halvedFrames_ = static_cast<UInt32>(start - halved_.audio.position);
  for (auto& plane : halved_.audio.planes) std::fill_n(plane.begin(), halvedFrames_, 0.0F);
  for (auto& plane : doubled_) plane.clear();
  unsound_.clear();
  doubledStart_ = kRatio * (halved_.audio.position - kEncodedBehindSource);
}

void ResampledTranscoder::takeHalved(const float* const* planes, std::size_t frames) {
  for (std::size_t done = 0; done < frames;) {
    const std::size_t step = std::min<std::size_t>(frames - done, kBlockFrames - halvedFrames_);
    for (UInt32 channel = 0; channel < channels_; ++channel) {
      std::copy_n(planes[channel] + done, step,
                  halved_.audio.planes[channel].begin() + halvedFrames_);
    }
    halvedFrames_ += static_cast<UInt32>(step);
    done += step;
    if (halvedFrames_ == kBlockFrames) codeBlock();
  }
}

void ResampledTranscoder::codeBlock() {
  halved_.audio.validFrom = halved_.audio.position;
  halved_.change.reset();
  if (!changes_.empty() && changes_.front().position < halved_.audio.end()) {
    halved_.change = changes_.front();
    changes_.pop_front();
  }
  codec_.process(halved_, coded_);
  if (halved_.change) halved_.setting = halved_.change->setting;
  halved_.audio.position += kBlockFrames;
  halvedFrames_ = 0;

  if (coded_.validFrom > coded_.position) start_ = std::max(start_, kRatio * coded_.validFrom);
  std::array<const float*, kMaximumChannels> input{};
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    auto& plane = coded_.planes[channel];
    std::fill_n(plane.begin(), coded_.validFrom - coded_.position, 0.0F);
    input[channel] = plane.data();
  }
  noteUnsound();
  const std::size_t frames = up_.process(input, kBlockFrames);
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    const float* made = up_.plane(channel);
    doubled_[channel].insert(doubled_[channel].end(), made, made + frames);
  }
}

/// A resampler spreads what is wrong as far as its filter reaches.
void ResampledTranscoder::noteUnsound() {
  for (Position grain = 0; grain < kBlockFrames; grain += AudioBlock::kGrain) {
    if (coded_.isSound(grain)) continue;
    const Position from = kRatio * (coded_.position + grain) - Position{kResamplerDelay};
    const Position to =
        from + kRatio * Position{AudioBlock::kGrain} + 2 * Position{kResamplerDelay};
    if (!unsound_.empty() && from <= unsound_.back().to) {
      unsound_.back().to = to;
    } else {
      unsound_.push_back({from, to});
    }
  }
}

/// A block that the resamplers have not completed is left out; the audio thread counts it as
/// missed.
void ResampledTranscoder::writeEncoded(AudioBlock& encoded) {
  const Position end = encoded.end();
  const bool isThere = doubledStart_ + static_cast<Position>(doubled_[0].size()) >= end;
  encoded.validFrom = isThere ? std::clamp(start_, encoded.position, end) : end;
  encoded.unsound = 0;
  while (!unsound_.empty() && unsound_.front().to <= encoded.position) unsound_.pop_front();
  for (const auto& stretch : unsound_) {
    if (stretch.from < end) encoded.markUnsound(stretch.from, stretch.to);
  }
  if (!isThere || doubledStart_ >= end) return;
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    auto& plane = doubled_[channel];
    std::copy_n(plane.begin() + (encoded.validFrom - doubledStart_), end - encoded.validFrom,
                encoded.planes[channel].begin() + (encoded.validFrom - encoded.position));
    plane.erase(plane.begin(), plane.begin() + (end - doubledStart_));
  }
  doubledStart_ = end;
}

}  // namespace converter

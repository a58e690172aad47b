#include "converter/transcoder/CodecPair.h"

#include <algorithm>

namespace converter {
namespace {

/// Where the first frame to encode starts, on the grid of frames, for output from `start` on.
Position firstFrame(const CodecTiming& timing, Position start) {
  const Position length = timing.frameLength;
  const Position containing = (start + timing.delay) / length;
  return (containing - timing.primingFrames) * length;
}

}  // namespace

CodecPair::CodecPair(std::unique_ptr<Encoder> encoder, const UnitFormat& unit, Position start,
                     BitStreamSink* sink)
    : encoder_(std::move(encoder)),
      timing_(encoder_->timing()),
      decoder_(openDecoder(encoder_->configuration(), unit, timing_.frameLength)),
      bitRate_(unit.sampleRate, timing_.frameLength),
      channels_(unit.channels),
      nextFrame_(firstFrame(timing_, start)),
      start_(start),
      sink_(sink),
      lookaheadLeft_(timing_.lookaheadFrames),
      decodedStart_(nextFrame_ - timing_.delay),
      decodedEnd_(decodedStart_) {
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    decoded_[channel].resize(std::size_t{kBlockFrames} + timing_.frameLength);
  }
  if (sink_ != nullptr) {
    sink_->startStream(
        {encoder_->configuration(), unit.sampleRate, unit.channels, timing_.frameLength});
  }
}

void CodecPair::render(const SourceHistory& history, Position position, UInt32 frames,
                       std::span<float* const> output) {
  const Position end = position + frames;
  while (decodedEnd_ < end) {
    keepFrom(position);
    codeFrame(history);
  }
  const Position offset = position - decodedStart_;
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    std::copy_n(decoded_[channel].begin() + offset, frames, output[channel]);
  }
}

void CodecPair::markFailures(AudioBlock& block) {
  // The next access unit overlaps with what should have been there.
  const Position spoilt = 2 * Position{timing_.frameLength};
  while (!failed_.empty() && failed_.front() + spoilt <= block.position) failed_.pop_front();
  for (const Position start : failed_) block.markUnsound(start, start + spoilt);
}

void CodecPair::keepFrom(Position position) {
  const Position kept = std::min(std::max(position, decodedStart_), decodedEnd_);
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    auto& plane = decoded_[channel];
    std::copy(plane.begin() + (kept - decodedStart_), plane.begin() + (decodedEnd_ - decodedStart_),
              plane.begin());
  }
  decodedStart_ = kept;
}

void CodecPair::codeFrame(const SourceHistory& history) {
  std::array<const float*, kMaximumChannels> frame{};
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    frame[channel] = history.frame(channel, nextFrame_);
  }
  const auto accessUnit = encoder_->encode(frame.data());
  nextFrame_ += timing_.frameLength;
  if (lookaheadLeft_ > 0) {
    --lookaheadLeft_;
    return;
  }
  if (sink_ != nullptr && !accessUnit.empty()) sink_->writeAccessUnit({accessUnit, decodedEnd_});
  const Position decodedNext = decodedEnd_ + timing_.frameLength;
  if (decodedNext > start_) bitRate_.count(accessUnit.size());
  // Silence in place of a failed frame keeps everything after it aligned.
  const float* const* planes = accessUnit.empty() ? nullptr : decoder_->decode(accessUnit);
  if (planes == nullptr) {
    ++failures_;
    failed_.push_back(decodedEnd_);
  }
  for (UInt32 channel = 0; channel < channels_; ++channel) {
    const auto to = decoded_[channel].begin() + (decodedEnd_ - decodedStart_);
    if (planes != nullptr) {
      std::copy_n(planes[channel], timing_.frameLength, to);
    } else {
      std::fill_n(to, timing_.frameLength, 0.0F);
    }
  }
  decodedEnd_ = decodedNext;
}

}  // namespace converter

#include "converter/Transcoder.h"

#include <algorithm>
#include <stdexcept>

#include "converter/FadeCurve.h"
#include "converter/Latency.h"

namespace converter {
namespace {

/// Null when the codec cannot be opened: in mid-play there is nobody to tell.
std::unique_ptr<CodecPair> openPair(const Setting& setting, const UnitFormat& unit, Position start,
                                    BitStreamSink* sink) {
  try {
    return std::make_unique<CodecPair>(setting, unit, start, sink);
  } catch (const std::runtime_error&) {
    return nullptr;
  }
}

}  // namespace

Transcoder::Transcoder(const UnitFormat& unit)
    : unit_(unit), curve_(fadeCurve(unit.sampleRate)), history_(unit.channels) {
  for (auto& plane : fadedIn_) plane.resize(curve_.size());
}

void Transcoder::process(const SourceBlock& source, AudioBlock& encoded) {
  if (expected_ != source.audio.position) restart(source);
  expected_ = source.audio.end();
  history_.write(source.audio);
  if (source.change) changes_.push_back(*source.change);

  encoded.position = source.audio.position - kEncodedBehindSource;
  const Position end = encoded.end();
  encoded.begin = std::clamp(begin_, encoded.position, end);
  for (Position position = encoded.begin; position < end;) {
    position += renderStep(position, end, encoded);
  }
}

BitRate Transcoder::bitRate() const {
  if (fade_) return fade_->to->bitRate();
  return pair_ ? pair_->bitRate() : BitRate{0, 0};
}

void Transcoder::clear() {
  expected_.reset();
  pair_.reset();
  fade_.reset();
  changes_.clear();
  history_.clear();
}

void Transcoder::restart(const SourceBlock& source) {
  fade_.reset();
  changes_.clear();
  begin_ = source.audio.position;
  pair_ = openPair(source.setting, unit_, begin_, sink_);
}

/// Keeps the old pair when the new one cannot be opened.
void Transcoder::beginFade(const SettingChange& change) {
  auto to = openPair(change.setting, unit_, change.position, sink_);
  if (!to) return;
  if (pair_) pair_->leaveBitStreamSink();
  fade_.emplace(Fade{change.position + static_cast<Position>(curve_.size()), std::move(to)});
}

/// Writes the samples up to the next point where something begins or ends; returns how many.
UInt32 Transcoder::renderStep(Position position, Position end, AudioBlock& encoded) {
  if (fade_ && fade_->end <= position) {
    pair_ = std::move(fade_->to);
    fade_.reset();
  }
  if (!fade_ && !changes_.empty() && changes_.front().position <= position) {
    beginFade(changes_.front());
    changes_.pop_front();
  }
  Position until = end;
  if (fade_) {
    until = std::min(until, fade_->end);
  } else if (!changes_.empty()) {
    until = std::min(until, changes_.front().position);
  }
  const auto frames = static_cast<UInt32>(until - position);
  const auto offset = position - encoded.position;
  std::array<float*, kMaximumChannels> output{};
  for (UInt32 channel = 0; channel < unit_.channels; ++channel) {
    output[channel] = encoded.planes[channel].data() + offset;
  }
  if (pair_) {
    pair_->render(history_, position, frames, output);
  } else {
    for (UInt32 channel = 0; channel < unit_.channels; ++channel) {
      std::fill_n(output[channel], frames, 0.0F);
    }
  }
  if (fade_) {
    std::array<float*, kMaximumChannels> fadedIn = {fadedIn_[0].data(), fadedIn_[1].data()};
    fade_->to->render(history_, position, frames, fadedIn);
    mix(output, frames, position);
  }
  return frames;
}

void Transcoder::mix(std::span<float* const> output, UInt32 frames, Position position) const {
  const Position begin = fade_->end - static_cast<Position>(curve_.size());
  const float* gains = curve_.data() + (position - begin);
  for (UInt32 channel = 0; channel < unit_.channels; ++channel) {
    float* old = output[channel];
    const float* fresh = fadedIn_[channel].data();
    for (UInt32 i = 0; i < frames; ++i) old[i] += gains[i] * (fresh[i] - old[i]);
  }
}

}  // namespace converter

#include "converter/transcoder/Transcoder.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "converter/transcoder/FadeCurve.h"
#include "converter/transcoder/Latency.h"

namespace converter {
Transcoder::Transcoder(const UnitFormat& unit, OpenEncoder open)
    : unit_(unit),
      open_(std::move(open)),
      curve_(fadeCurve(unit.sampleRate)),
      history_(unit.channels) {
  for (auto& plane : fadedIn_) plane.resize(curve_.size());
}

void Transcoder::process(const SourceBlock& source, AudioBlock& encoded) {
  // Without a codec, try again at every block: the cause may have gone.
  if (expected_ != source.audio.position || !pair_) restart(source);
  expected_ = source.audio.end();
  history_.write(source.audio);
  if (source.change) changes_.push_back(*source.change);

  encoded.position = source.audio.position - kEncodedBehindSource;
  const Position end = encoded.end();
  encoded.validFrom = std::clamp(start_, encoded.position, end);
  if (!pair_) encoded.validFrom = end;
  encoded.unsound = 0;
  encoded.markUnsound(start_, settled_);
  for (Position position = encoded.validFrom; position < end;) {
    position += renderStep(position, end, encoded);
  }
  takeFailures(encoded);
}

CodecReport Transcoder::report() const {
  CodecReport report{{0, 0}, inUse_, refused_, failures_};
  if (fade_) {
    report.bitRate = fade_->to->bitRate();
  } else if (pair_) {
    report.bitRate = pair_->bitRate();
  }
  return report;
}

void Transcoder::clear() {
  expected_.reset();
  pair_.reset();
  fade_.reset();
  changes_.clear();
  history_.clear();
  inUse_.reset();
  refused_.reset();
}

void Transcoder::restart(const SourceBlock& source) {
  fade_.reset();
  changes_.clear();
  start_ = source.audio.position;
  settled_ = start_ > 0 ? start_ + kSettlingFrames : start_;
  inUse_.reset();
  pair_ = openPair(source.setting, start_);
}

/// Null when the codec cannot be opened. In mid-play nobody catches exceptions, so the failure goes
/// into the report.
std::unique_ptr<CodecPair> Transcoder::openPair(const Setting& setting, Position start) {
  try {
    auto pair = std::make_unique<CodecPair>(open_(setting, unit_), unit_, start, sink_);
    inUse_ = setting;
    refused_.reset();
    return pair;
  } catch (const std::exception&) {
    refused_ = setting;
    ++failures_;
    return nullptr;
  }
}

/// Keeps the old pair when the new one cannot be opened.
void Transcoder::beginFade(const SettingChange& change) {
  auto to = openPair(change.setting, change.position);
  if (!to) return;
  pair_->detachBitStreamSink();
  fade_.emplace(Fade{change.position + static_cast<Position>(curve_.size()), std::move(to)});
}

void Transcoder::endFade(AudioBlock& encoded) {
  takeFailures(encoded);
  pair_ = std::move(fade_->to);
  fade_.reset();
}

void Transcoder::takeFailures(AudioBlock& encoded) {
  for (CodecPair* const pair : {pair_.get(), fade_ ? fade_->to.get() : nullptr}) {
    if (pair == nullptr) continue;
    failures_ += pair->takeFailures();
    pair->markFailures(encoded);
  }
}

/// Renders up to the next start or end of a fade, or to `end`; returns the number of samples.
UInt32 Transcoder::renderStep(Position position, Position end, AudioBlock& encoded) {
  if (fade_ && fade_->end <= position) endFade(encoded);
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
  pair_->render(history_, position, frames, output);
  if (fade_) {
    std::array<float*, kMaximumChannels> fadedIn = {fadedIn_[0].data(), fadedIn_[1].data()};
    fade_->to->render(history_, position, frames, fadedIn);
    mix(output, frames, position);
  }
  return frames;
}

void Transcoder::mix(std::span<float* const> output, UInt32 frames, Position position) const {
  const Position start = fade_->end - static_cast<Position>(curve_.size());
  const float* gains = curve_.data() + (position - start);
  for (UInt32 channel = 0; channel < unit_.channels; ++channel) {
    float* old = output[channel];
    const float* fresh = fadedIn_[channel].data();
    for (UInt32 i = 0; i < frames; ++i) old[i] += gains[i] * (fresh[i] - old[i]);
  }
}

}  // namespace converter

#include "host/playback/LoopingSource.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

/// Loops up to this length are kept in memory: seeking in a file for each of their rounds would
/// cost more than reading them.
constexpr std::int64_t kLongestRemembered = 65536;

/// The share of what comes in the `i`th of `count` frames of a fade, between 0 and 1.
float shareAt(std::int64_t i, std::int64_t count) {
  return static_cast<float>(i + 1) / static_cast<float>(count + 1);
}

}  // namespace

LoopingSource::LoopingSource(std::unique_ptr<AudioSource> source)
    : source_(std::move(source)), channels_(source_->format().channels) {}

void LoopingSource::setLoop(const std::optional<LoopRange>& loop) {
  loop_ = loop;
  tail_.clear();
  round_.clear();
  headFrames_ = 0;
  if (!loop_) return;
  const auto count = std::min(kFadeFrames, loop_->length());
  if (loop_->begin >= count) {
    makeCrossFade(count);
  } else {
    makeDip(count / 2);
  }
  if (loop_->length() <= kLongestRemembered) rememberRound();
}

std::vector<float> LoopingSource::framesAt(std::int64_t begin, std::int64_t count) {
  std::vector<float> frames(static_cast<std::size_t>(count * channels_));
  source_->seek(begin);
  source_->read(frames.data(), static_cast<std::size_t>(count));
  return frames;
}

void LoopingSource::makeCrossFade(std::int64_t count) {
  tailBegin_ = loop_->end - count;
  tail_ = framesAt(tailBegin_, count);
  const auto before = framesAt(loop_->begin - count, count);
  for (std::size_t i = 0; i < tail_.size(); ++i) {
    const auto share = shareAt(static_cast<std::int64_t>(i) / channels_, count);
    tail_[i] = (1 - share) * tail_[i] + share * before[i];
  }
}

void LoopingSource::makeDip(std::int64_t count) {
  tailBegin_ = loop_->end - count;
  tail_ = framesAt(tailBegin_, count);
  headFrames_ = count;
  for (std::size_t i = 0; i < tail_.size(); ++i) {
    tail_[i] *= 1 - shareAt(static_cast<std::int64_t>(i) / channels_, count);
  }
}

void LoopingSource::rememberRound() {
  const auto count = loop_->length();
  round_ = framesAt(loop_->begin, count);
  fadeIn(round_.data(), 0, std::min(headFrames_, count));
  std::copy(tail_.begin(), tail_.end(), round_.end() - static_cast<std::ptrdiff_t>(tail_.size()));
}

void LoopingSource::seek(std::int64_t frame) {
  source_->seek(frame);
  position_ = frame;
  loops_ = loop_ && frame < loop_->end;
  repeats_ = false;
}

std::size_t LoopingSource::read(float* interleaved, std::size_t frames) {
  if (!loops_) return source_->read(interleaved, frames);
  const auto wanted = static_cast<std::int64_t>(frames);
  std::int64_t done = 0;
  while (done < wanted) {
    const auto got = readRound(interleaved + done * channels_, wanted - done);
    if (got == 0) break;
    done += got;
  }
  return static_cast<std::size_t>(done);
}

std::int64_t LoopingSource::readRound(float* interleaved, std::int64_t frames) {
  frames = std::min(frames, loop_->end - position_);
  if (repeats_ && !round_.empty()) {
    frames = copied(round_, position_ - loop_->begin, interleaved, frames);
  } else if (position_ >= tailBegin_ && !tail_.empty()) {
    frames = copied(tail_, position_ - tailBegin_, interleaved, frames);
  } else {
    frames = std::min(frames, tailBegin_ - position_);
    frames =
        static_cast<std::int64_t>(source_->read(interleaved, static_cast<std::size_t>(frames)));
    if (repeats_) fadeIn(interleaved, position_ - loop_->begin, frames);
  }
  position_ += frames;
  if (position_ < loop_->end) return frames;
  position_ = loop_->begin;
  repeats_ = true;
  if (round_.empty()) source_->seek(position_);
  return frames;
}

void LoopingSource::fadeIn(float* interleaved, std::int64_t begin, std::int64_t count) const {
  for (std::int64_t i = begin; i < std::min(begin + count, headFrames_); ++i) {
    for (std::int64_t channel = 0; channel < channels_; ++channel) {
      *interleaved++ *= shareAt(i, headFrames_);
    }
  }
}

std::int64_t LoopingSource::copied(const std::vector<float>& stretch, std::int64_t begin,
                                   float* interleaved, std::int64_t frames) const {
  std::copy_n(stretch.begin() + begin * channels_, frames * channels_, interleaved);
  return frames;
}

}  // namespace host

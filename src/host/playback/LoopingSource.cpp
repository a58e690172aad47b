#include "host/playback/LoopingSource.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

/// Loops up to this length, in frames, are kept in memory: seeking in the file in every round would
/// cost more than reading.
constexpr std::int64_t kLongestRemembered = 65536;

/// The gain of what fades in, at frame `i` of `count`; strictly between 0 and 1.
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
  if (loop_->start >= count) {
    makeCrossFade(count);
  } else {
    makeDip(count / 2);
  }
  if (loop_->length() <= kLongestRemembered) rememberRound();
}

std::vector<float> LoopingSource::readAt(std::int64_t start, std::int64_t count) {
  std::vector<float> frames(static_cast<std::size_t>(count * channels_));
  source_->seek(start);
  source_->read(frames.data(), static_cast<std::size_t>(count));
  return frames;
}

void LoopingSource::makeCrossFade(std::int64_t count) {
  tailStart_ = loop_->end - count;
  tail_ = readAt(tailStart_, count);
  const auto before = readAt(loop_->start - count, count);
  for (std::size_t i = 0; i < tail_.size(); ++i) {
    const auto share = shareAt(static_cast<std::int64_t>(i) / channels_, count);
    tail_[i] = (1 - share) * tail_[i] + share * before[i];
  }
}

void LoopingSource::makeDip(std::int64_t count) {
  tailStart_ = loop_->end - count;
  tail_ = readAt(tailStart_, count);
  headFrames_ = count;
  for (std::size_t i = 0; i < tail_.size(); ++i) {
    tail_[i] *= 1 - shareAt(static_cast<std::int64_t>(i) / channels_, count);
  }
}

void LoopingSource::rememberRound() {
  const auto count = loop_->length();
  round_ = readAt(loop_->start, count);
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
    frames = copyFrames(round_, position_ - loop_->start, interleaved, frames);
  } else if (position_ >= tailStart_ && !tail_.empty()) {
    frames = copyFrames(tail_, position_ - tailStart_, interleaved, frames);
  } else {
    frames = std::min(frames, tailStart_ - position_);
    frames =
        static_cast<std::int64_t>(source_->read(interleaved, static_cast<std::size_t>(frames)));
    if (repeats_) fadeIn(interleaved, position_ - loop_->start, frames);
  }
  position_ += frames;
  if (position_ < loop_->end) return frames;
  position_ = loop_->start;
  repeats_ = true;
  if (round_.empty()) source_->seek(position_);
  return frames;
}

void LoopingSource::fadeIn(float* interleaved, std::int64_t start, std::int64_t count) const {
  for (std::int64_t i = start; i < std::min(start + count, headFrames_); ++i) {
    for (std::int64_t channel = 0; channel < channels_; ++channel) {
      *interleaved++ *= shareAt(i, headFrames_);
    }
  }
}

std::int64_t LoopingSource::copyFrames(const std::vector<float>& stretch, std::int64_t start,
                                       float* interleaved, std::int64_t frames) const {
  std::copy_n(stretch.begin() + start * channels_, frames * channels_, interleaved);
  return frames;
}

}  // namespace host

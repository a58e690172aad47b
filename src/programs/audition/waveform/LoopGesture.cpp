#include "programs/audition/waveform/LoopGesture.h"

#include <algorithm>

namespace host::audition {
namespace {

std::optional<LoopRange> between(std::int64_t one, std::int64_t other) {
  const LoopRange loop = {std::min(one, other), std::max(one, other)};
  return loop.length() > 0 ? std::optional(loop) : std::nullopt;
}

}  // namespace

LoopGesture::LoopGesture(LoopPart part, std::int64_t pressedAt,
                         const std::optional<LoopRange>& loop, std::int64_t length)
    : part_(loop ? part : LoopPart::None),
      pressedAt_(std::clamp<std::int64_t>(pressedAt, 0, length)),
      before_(loop),
      length_(length),
      loop_(loop) {}

void LoopGesture::moveTo(std::int64_t frame) {
  const auto place = std::clamp<std::int64_t>(frame, 0, length_);
  switch (part_) {
    case LoopPart::None:
      loop_ = between(pressedAt_, place);
      break;
    case LoopPart::Start:
      loop_ = between(place, before_->end);
      break;
    case LoopPart::End:
      loop_ = between(before_->start, place);
      break;
    case LoopPart::Whole:
      loop_ = movedLoop(*before_, frame - pressedAt_, length_);
      break;
  }
}

LoopRange movedLoop(const LoopRange& loop, std::int64_t by, std::int64_t length) {
  const auto start = std::clamp<std::int64_t>(loop.start + by, 0, length - loop.length());
  return {start, start + loop.length()};
}

std::optional<LoopRange> loopFrom(std::int64_t start, const std::optional<LoopRange>& loop,
                                  std::int64_t length) {
  const bool fits = loop && loop->end > start;
  return start < length ? between(start, fits ? loop->end : length) : std::nullopt;
}

std::optional<LoopRange> loopUpTo(std::int64_t end, const std::optional<LoopRange>& loop) {
  const bool fits = loop && loop->start < end;
  return between(fits ? loop->start : 0, end);
}

}  // namespace host::audition

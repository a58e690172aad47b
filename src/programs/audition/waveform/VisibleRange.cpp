#include "programs/audition/waveform/VisibleRange.h"

#include <algorithm>
#include <cmath>

namespace host::audition {

void VisibleRange::place(std::int64_t start, std::int64_t span) {
  span = std::clamp(span, std::min(kShortest, length_), length_);
  start_ = std::clamp<std::int64_t>(start, 0, length_ - span);
  end_ = start_ + span;
}

void VisibleRange::setLength(std::int64_t length) {
  if (length == length_) return;
  const bool wasAll = isAll();
  length_ = length;
  place(start_, wasAll ? length : span());
}

void VisibleRange::zoom(double factor, std::int64_t anchor) {
  if (span() == 0) return;
  const auto share = static_cast<double>(anchor - start_) / static_cast<double>(span());
  const auto wanted = std::llround(static_cast<double>(span()) * factor);
  const auto now = std::clamp<std::int64_t>(wanted, std::min(kShortest, length_), length_);
  place(anchor - std::llround(share * static_cast<double>(now)), now);
}

void VisibleRange::scroll(std::int64_t frames) {
  place(start_ + frames, span());
}

void VisibleRange::follow(std::int64_t frame) {
  if (frame >= start_ && frame <= end_) return;
  place(frame, span());
}

double VisibleRange::xOf(std::int64_t frame, double width) const {
  if (span() == 0) return 0;
  return static_cast<double>(frame - start_) * width / static_cast<double>(span());
}

std::int64_t VisibleRange::frameAt(double x, double width) const {
  if (width <= 0) return start_;
  return start_ + std::llround(x * static_cast<double>(span()) / width);
}

}  // namespace host::audition

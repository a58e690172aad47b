#include "converter/transcoder/SourceHistory.h"

#include <algorithm>

namespace converter {
namespace {

std::size_t indexOf(Position position) {
  return static_cast<std::size_t>(position) % SourceHistory::kFrames;
}

}  // namespace

SourceHistory::SourceHistory(UInt32 channels) {
  for (UInt32 channel = 0; channel < channels; ++channel) planes_[channel].resize(kFrames);
}

void SourceHistory::write(const AudioBlock& block) {
  const Position oldest = block.position - kFrames;
  for (Position gap = std::max(end_, oldest); gap < block.position; gap += kBlockFrames) {
    for (auto& plane : planes_) {
      if (!plane.empty()) std::fill_n(&plane[indexOf(gap)], kBlockFrames, 0.0F);
    }
  }
  for (std::size_t channel = 0; channel < planes_.size(); ++channel) {
    auto& plane = planes_[channel];
    if (!plane.empty()) std::ranges::copy(block.planes[channel], &plane[indexOf(block.position)]);
  }
  end_ = block.end();
}

const float* SourceHistory::frame(UInt32 channel, Position position) const {
  return &planes_[channel][indexOf(position)];
}

void SourceHistory::clear() {
  for (auto& plane : planes_) std::ranges::fill(plane, 0.0F);
  end_ = 0;
}

}  // namespace converter

#include "converter/codec/BitRateMeter.h"

#include <algorithm>

namespace converter {

BitRateMeter::BitRateMeter(double sampleRate, UInt32 frameLength)
    : unitsPerSecond_(sampleRate / frameLength),
      recent_(static_cast<std::size_t>(kRecentSeconds * unitsPerSecond_)) {}

void BitRateMeter::count(std::size_t accessUnitBytes) {
  recentBytes_ += accessUnitBytes - recent_[next_];
  recent_[next_] = accessUnitBytes;
  next_ = (next_ + 1) % recent_.size();
  bytes_ += accessUnitBytes;
  ++units_;
}

BitRate BitRateMeter::value() const {
  if (units_ == 0) return {0, 0};
  const double kbitPerByte = 8 * unitsPerSecond_ / 1000;
  const auto recentUnits = std::min<std::uint64_t>(units_, recent_.size());
  const auto rate = [kbitPerByte](std::uint64_t bytes, std::uint64_t units) {
    return static_cast<Float32>(static_cast<double>(bytes) * kbitPerByte /
                                static_cast<double>(units));
  };
  return {rate(recentBytes_, recentUnits), rate(bytes_, units_)};
}

}  // namespace converter

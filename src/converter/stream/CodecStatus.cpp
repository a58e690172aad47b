#include "converter/stream/CodecStatus.h"

#include <bit>

namespace converter {

static_assert(sizeof(BitRate) == sizeof(UInt64));

void CodecStatus::publish(const CodecReport& report) {
  bitRate_.store(std::bit_cast<UInt64>(report.bitRate), std::memory_order_relaxed);
  failures_.store(report.failures, std::memory_order_relaxed);
  const bool carriesAnother = report.inUse && report.refused;
  if (carriesAnother) {
    inUse_.store(*report.inUse, std::memory_order_relaxed);
    refused_.store(*report.refused, std::memory_order_relaxed);
  }
  carriesAnother_.store(carriesAnother, std::memory_order_release);
}

BitRate CodecStatus::bitRate() const {
  return std::bit_cast<BitRate>(bitRate_.load(std::memory_order_relaxed));
}

Setting CodecStatus::carrying(const Setting& asked) const {
  const bool isRefused = carriesAnother_.load(std::memory_order_acquire) &&
                         refused_.load(std::memory_order_relaxed) == asked;
  return isRefused ? inUse_.load(std::memory_order_relaxed) : asked;
}

}  // namespace converter

#include "host/measure/BitCounter.h"

#include <chrono>
#include <thread>

namespace host::measure {
namespace {

constexpr auto lookAgain = std::chrono::microseconds(200);
/// Many thousand times what a few access units take.
constexpr auto patience = std::chrono::seconds(60);

}  // namespace

void BitCounter::streamBegan(const converter::BitStream& stream) noexcept {
  sampleRate_ = stream.sampleRate;
  frameLength_ = stream.frameLength;
  if (next_ != nullptr) next_->streamBegan(stream);
}

void BitCounter::accessUnitMade(const converter::AccessUnit& unit) noexcept {
  const auto end = unit.position + frameLength_;
  if (end > 0) {
    ++units_;
    bytes_ += unit.bytes.size();
  }
  if (next_ != nullptr) next_->accessUnitMade(unit);
  end_.store(end, std::memory_order_release);
}

bool BitCounter::waitUntil(std::int64_t end) const {
  const auto givenUp = std::chrono::steady_clock::now() + patience;
  while (end_.load(std::memory_order_acquire) < end) {
    if (std::chrono::steady_clock::now() > givenUp) return false;
    std::this_thread::sleep_for(lookAgain);
  }
  return true;
}

double BitCounter::averageKbps() const {
  if (units_ == 0) return 0;
  const auto kilobitsPerByte = 8 * sampleRate_ / static_cast<double>(frameLength_) / 1000;
  // As exact as the unit's own figure, so that both round alike.
  return static_cast<float>(static_cast<double>(bytes_) * kilobitsPerByte /
                            static_cast<double>(units_));
}

}  // namespace host::measure

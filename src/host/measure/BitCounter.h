#pragma once

#include <atomic>
#include <cstdint>

#include "converter/BitStreamSink.h"

namespace host::measure {

/// Counts the bits of an encoded signal and hands its access units on.
class BitCounter final : public converter::BitStreamSink {
 public:
  /// `next` may be null.
  explicit BitCounter(converter::BitStreamSink* next) : next_(next) {}

  void streamBegan(const converter::BitStream& stream) noexcept override;
  void accessUnitMade(const converter::AccessUnit& unit) noexcept override;

  /// Waits until the encoder has got as far as `end`. False when it does not, having failed.
  bool waitUntil(std::int64_t end) const;
  /// Over all access units that hold any of the signal, kbit/s; 0 before the first.
  double averageKbps() const;

 private:
  converter::BitStreamSink* next_;
  double sampleRate_ = 0;
  std::int64_t frameLength_ = 0;
  std::uint64_t units_ = 0;
  std::uint64_t bytes_ = 0;
  /// Written last, so that whoever sees it sees the counts.
  std::atomic<std::int64_t> end_{INT64_MIN};
};

}  // namespace host::measure

#pragma once

#include <cstdint>
#include <vector>

#include "contract/ConverterExtensions.h"

namespace converter {

/// Measures the running bit rate of a stream of access units. One thread at a time.
class BitRateMeter {
 public:
  /// Window of the recent rate.
  static constexpr double kRecentSeconds = 3;

  BitRateMeter(double sampleRate, UInt32 frameLength);

  void count(std::size_t accessUnitBytes);
  BitRate value() const;

 private:
  double unitsPerSecond_;
  std::vector<std::size_t> recent_;
  std::size_t next_ = 0;
  std::uint64_t units_ = 0;
  std::uint64_t bytes_ = 0;
  std::uint64_t recentBytes_ = 0;
};

}  // namespace converter

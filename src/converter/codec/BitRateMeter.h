#pragma once

#include <cstdint>
#include <vector>

#include "contract/ConverterExtensions.h"

namespace converter {

/// The running bit rate of a stream of access units.
class BitRateMeter {
 public:
  /// Length of the stretch that the recent rate is taken over.
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

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Peak and overs of intervals, from every point of the interpolated signal.
struct EveryPointReadings {
  float peak = 0;
  std::int64_t overs = 0;
};

/// The readings of the intervals that begin at samples `first` up to `last`, computed without
/// leaving anything out. Samples outside are 0.
EveryPointReadings everyPoint(const std::vector<float>& samples, std::size_t first,
                              std::size_t last);

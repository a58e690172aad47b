#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Peak and overs of some intervals, from every point of the interpolated signal.
struct EveryPointReadings {
  float peak = 0;
  std::int64_t overs = 0;
};

/// The readings of the intervals that start at samples [first, last), computed without skipping any
/// point. Samples outside the vector are 0.
EveryPointReadings everyPoint(const std::vector<float>& samples, std::size_t first,
                              std::size_t last);

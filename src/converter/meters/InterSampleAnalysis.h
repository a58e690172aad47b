#pragma once

#include <cstddef>
#include <cstdint>

#include "converter/meters/InterSampleGrid.h"

namespace converter {

/// The most sample intervals that one call of `analyseIntervals` takes.
inline constexpr std::size_t kMaximumIntervals = 128;
/// Samples before the first interval and after the last that the interpolation depends on.
inline constexpr std::size_t kSamplesBefore = kHalfFilter.size() + 2;
inline constexpr std::size_t kSamplesAfter = kHalfFilter.size() + 3;
/// Work is done in rows of this many, so up to as many samples beyond those are read, to no effect.
inline constexpr std::size_t kRow = 16;

/// Peak and overs of the interpolated signal.
struct InterSampleReadings {
  /// Largest magnitude, linear.
  float peak;
  /// Sample intervals with a point whose magnitude exceeds 1.
  std::int64_t overs;
};

/// Meters the intervals that start at `samples[0]` to `samples[count - 1]` into `readings`.
///
/// `samples` are finite, of magnitude at most 1e30, and readable from `-kSamplesBefore` up to but
/// not including `count + kSamplesAfter + kRow`; from `count + kSamplesAfter` on they have no
/// effect. The result is bit for bit that of computing every point of every interval, on every
/// processor: points are skipped only where a bound proves that they can change neither reading.
void analyseIntervals(const float* samples, std::size_t count,
                      InterSampleReadings& readings) noexcept;

}  // namespace converter

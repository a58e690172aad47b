#pragma once

#include <cstddef>
#include <cstdint>

#include "converter/meters/InterSampleGrid.h"

namespace converter {

/// Sample intervals that one call of `analyseIntervals` takes at most.
inline constexpr std::size_t kMaximumIntervals = 128;
/// Samples before the first and after the last interval that its interpolation depends on.
inline constexpr std::size_t kSamplesBefore = kHalfFilter.size() + 2;
inline constexpr std::size_t kSamplesAfter = kHalfFilter.size() + 3;
/// Samples after those that may be read but have no effect: work is done in rows of this many.
inline constexpr std::size_t kRow = 16;

/// Peak and overs of the interpolated signal.
struct InterSampleReadings {
  /// Largest magnitude, linear.
  float peak;
  /// Sample intervals with a point whose magnitude exceeds 1.
  std::int64_t overs;
};

/// Meters the intervals that begin at `samples[0]` to `samples[count - 1]` into `readings`.
///
/// `samples` are finite, of magnitude at most 1e30, and can be read from `-kSamplesBefore` up to
/// `count + kSamplesAfter + kRow`; what is beyond `count + kSamplesAfter - 1` has no effect.
/// The result is that of computing every point of every interval, to the bit, on every processor:
/// points are left out only where a bound shows that they can change neither reading.
void analyseIntervals(const float* samples, std::size_t count,
                      InterSampleReadings& readings) noexcept;

}  // namespace converter

#pragma once

#include <functional>
#include <optional>

namespace host::measure {

/// The greatest reduction that is tried, in tenths of a decibel.
inline constexpr int kGreatestTrim = 600;
/// Steps above the answer that are refuted, as far as there are so many.
inline constexpr int kRefutedSteps = 3;

/// Whether a signal reduced by so many tenths of a decibel comes out of the encoder without overs.
using IsClean = std::function<bool(int tenths)>;

/// The smallest reduction in tenths of a decibel that was found clean, above 0; nothing when not
/// even `kGreatestTrim` is. To be called when no reduction at all is not clean.
///
/// Encoding is not monotone: an encoder decides anew at every level, so that a signal may come out
/// clean, reduced by a little more not so, and by still more clean again. What holds of the answer:
/// it was tried and found clean; each of the `kRefutedSteps` next smaller reductions was tried and
/// found not clean. `guess` is where to look first: the nearer, the fewer tries.
std::optional<int> smallestCleanTrim(int guess, const IsClean& isClean);

}  // namespace host::measure

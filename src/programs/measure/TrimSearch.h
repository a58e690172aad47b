#pragma once

#include <functional>
#include <optional>

namespace host::measure {

/// The greatest reduction that is tried, in tenths of a decibel.
inline constexpr int kGreatestTrim = 600;
/// How many smaller reductions next to the answer are tried and found not clean, if there are that
/// many.
inline constexpr int kRefutedSteps = 3;

/// Whether a signal reduced by so many tenths of a decibel comes out of the encoder without overs.
using IsClean = std::function<bool(int tenths)>;

/// The smallest reduction, in tenths of a decibel above 0, that was found clean; nothing if not
/// even `kGreatestTrim` is. To be called once the signal without any reduction is known not to be
/// clean.
///
/// Encoding is not monotonic: an encoder decides afresh at every level, so a signal may come out
/// clean, not clean when reduced a little more, and clean again still further down. What is certain
/// about the answer: it was tried and found clean, and each of the `kRefutedSteps` next smaller
/// reductions was tried and found not clean. `guess` is where to look first: the closer it is, the
/// fewer tries it takes.
std::optional<int> smallestCleanTrim(int guess, const IsClean& isClean);

}  // namespace host::measure

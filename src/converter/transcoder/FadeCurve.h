#pragma once

#include <vector>

namespace converter {

/// The gains of a cross-fade's incoming signal: a raised cosine, without its end points 0 and 1.
/// The outgoing signal gets 1 minus the gain: the two signals are equal except for coding errors,
/// so the gains, not the powers, have to add up to 1.
std::vector<float> fadeCurve(double sampleRate);

/// Length of every cross-fade, seconds.
inline constexpr double kFadeSeconds = 0.010;

}  // namespace converter

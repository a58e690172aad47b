#pragma once

#include <vector>

namespace converter {

/// The gains of the signal that a cross-fade leads to: a raised cosine from above 0 to below 1, the
/// same backwards and forwards. The two gains add up to 1, because the signals are equal but for
/// the encoder's error.
std::vector<float> fadeCurve(double sampleRate);

/// Length of every cross-fade.
inline constexpr double kFadeSeconds = 0.010;

}  // namespace converter

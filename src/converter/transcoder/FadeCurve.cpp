#include "converter/transcoder/FadeCurve.h"

#include <cmath>
#include <numbers>

namespace converter {

std::vector<float> fadeCurve(double sampleRate) {
  std::vector<float> gains(static_cast<std::size_t>(std::lround(kFadeSeconds * sampleRate)));
  const double step = std::numbers::pi / static_cast<double>(gains.size() + 1);
  for (std::size_t i = 0; i < gains.size(); ++i) {
    gains[i] = static_cast<float>(0.5 - 0.5 * std::cos(step * static_cast<double>(i + 1)));
  }
  return gains;
}

}  // namespace converter

#include "programs/demo_mix/Limiter.h"

#include <algorithm>
#include <deque>

#include "programs/demo_mix/Peaks.h"

namespace host::demo_mix {
namespace {

constexpr double kLookAheadSeconds = 0.0015;
constexpr double kReleaseSeconds = 0.06;

/// For each value the least of itself and the `count - 1` that follow it.
std::vector<double> leastAhead(const std::vector<double>& values, std::size_t count) {
  std::vector<double> least(values.size());
  // Positions of values that are less than all before them in the window; the least is at the back.
  std::deque<std::size_t> rising;
  for (std::size_t i = values.size(); i-- > 0;) {
    while (!rising.empty() && values[rising.front()] >= values[i]) rising.pop_front();
    rising.push_front(i);
    if (rising.back() >= i + count) rising.pop_back();
    least[i] = values[rising.back()];
  }
  return least;
}

void recoverSlowly(std::vector<double>& gains) {
  const double share = 1 - std::exp(-1 / (kReleaseSeconds * kSampleRate));
  double gain = 1;
  for (double& wanted : gains) {
    gain = std::min(wanted, gain + (1 - gain) * share);
    wanted = gain;
  }
}

}  // namespace

void limit(Stereo& mix) {
  const auto ahead = framesIn(kLookAheadSeconds);
  const auto left = peaksOf(mix.left);
  const auto right = peaksOf(mix.right);
  std::vector<double> gains(mix.frames());
  for (std::size_t i = 0; i < mix.frames(); ++i) {
    gains[i] = 1 / std::max({1.0, left[i], right[i]});
  }
  gains = leastAhead(gains, ahead);
  recoverSlowly(gains);
  // Each gain in the mean has looked ahead to this frame, so the mean is low enough for it.
  double sum = static_cast<double>(ahead) * (gains.empty() ? 1 : gains.front());
  for (std::size_t i = 0; i < mix.frames(); ++i) {
    sum += gains[i] - (i < ahead ? gains.front() : gains[i - ahead]);
    const double gain = sum / static_cast<double>(ahead);
    mix.left[i] *= gain;
    mix.right[i] *= gain;
  }
}

}  // namespace host::demo_mix

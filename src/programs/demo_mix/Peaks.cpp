#include "programs/demo_mix/Peaks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace host::demo_mix {
namespace {

constexpr std::size_t kPoints = 4;
constexpr std::size_t kReach = 12;
/// In music no waveform rises from here beyond full scale and falls back within one sample.
constexpr double kLow = 0.4;
using Taps = std::array<double, 2 * kReach>;

/// The ideal interpolator for a point between two samples, windowed with a raised cosine.
Taps tapsAt(double between) {
  Taps taps{};
  for (std::size_t i = 0; i < taps.size(); ++i) {
    const double distance = static_cast<double>(i) - (kReach - 1) - between;
    const double angle = std::numbers::pi * distance;
    taps[i] = std::sin(angle) / angle * (0.5 + 0.5 * std::cos(angle / kReach));
  }
  return taps;
}

double interpolated(const std::vector<double>& samples, std::size_t at, const Taps& taps) {
  double sum = 0;
  for (std::size_t i = 0; i < taps.size(); ++i) {
    const auto place = at + i;
    if (place >= kReach - 1 && place - (kReach - 1) < samples.size()) {
      sum += taps[i] * samples[place - (kReach - 1)];
    }
  }
  return sum;
}

}  // namespace

std::vector<double> peaksOf(const std::vector<double>& samples) {
  std::array<Taps, kPoints - 1> phases{};
  for (std::size_t phase = 0; phase < phases.size(); ++phase) {
    phases[phase] = tapsAt(static_cast<double>(phase + 1) / kPoints);
  }
  std::vector<double> peaks(samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i) {
    peaks[i] = std::abs(samples[i]);
    const double next = i + 1 < samples.size() ? std::abs(samples[i + 1]) : 0;
    if (std::max(peaks[i], next) < kLow) continue;
    for (const auto& taps : phases) {
      peaks[i] = std::max(peaks[i], std::abs(interpolated(samples, i, taps)));
    }
  }
  return peaks;
}

}  // namespace host::demo_mix

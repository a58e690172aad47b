#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace host::demo_mix {

inline constexpr int kSampleRate = 44100;

/// Two channels of samples; full scale is 1.
struct Stereo {
  explicit Stereo(std::size_t frames) : left(frames), right(frames) {}

  std::size_t frames() const { return left.size(); }
  /// Adds a sample; beyond the end it is dropped.
  void add(std::size_t frame, double toLeft, double toRight) {
    if (frame >= frames()) return;
    left[frame] += toLeft;
    right[frame] += toRight;
  }

  std::vector<double> left;
  std::vector<double> right;
};

inline std::size_t framesIn(double seconds) {
  return static_cast<std::size_t>(std::llround(seconds * kSampleRate));
}

}  // namespace host::demo_mix

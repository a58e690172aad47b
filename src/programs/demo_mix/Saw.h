#pragma once

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// A sawtooth whose step is rounded off with the integral of a triangle two samples wide, which
/// keeps most of the aliasing down.
class Saw {
 public:
  /// `phase` is a fraction of the period.
  explicit Saw(double hertz, double phase = 0) : step_(hertz / kSampleRate), phase_(phase) {}

  double next() {
    phase_ += step_;
    if (phase_ >= 1) phase_ -= 1;
    return 2 * phase_ - 1 - rounding();
  }

 private:
  double rounding() const {
    if (phase_ < step_) {
      const double after = phase_ / step_;
      return 2 * after - after * after - 1;
    }
    if (phase_ > 1 - step_) {
      const double before = (phase_ - 1) / step_;
      return before * before + 2 * before + 1;
    }
    return 0;
  }

  double step_;
  double phase_;
};

}  // namespace host::demo_mix

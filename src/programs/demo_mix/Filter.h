#pragma once

#include <cmath>
#include <numbers>

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// A second-order state-variable filter with trapezoidal integrators.
class Filter {
 public:
  struct Outputs {
    double low;
    double band;
    double high;
  };

  explicit Filter(double hertz, double resonance = 0.7) : damping_(1 / resonance) { tune(hertz); }

  void tune(double hertz) { g_ = std::tan(std::numbers::pi * hertz / kSampleRate); }

  Outputs next(double input) {
    const double high = (input - (damping_ + g_) * band_ - low_) / (1 + g_ * (g_ + damping_));
    const double band = band_ + g_ * high;
    const double low = low_ + g_ * band;
    band_ = band + g_ * high;
    low_ = low + g_ * band;
    return {low, band, high};
  }

 private:
  double damping_;
  double g_ = 0;
  double band_ = 0;
  double low_ = 0;
};

}  // namespace host::demo_mix

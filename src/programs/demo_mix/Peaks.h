#pragma once

#include <vector>

namespace host::demo_mix {

/// For each sample the largest magnitude that the wave reaches there or on its way to the next one,
/// seen four times as finely as the samples are. Far below full scale, which is 1, the sample's own
/// magnitude has to do.
std::vector<double> peaksOf(const std::vector<double>& samples);

}  // namespace host::demo_mix

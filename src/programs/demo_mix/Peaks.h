#pragma once

#include <vector>

namespace host::demo_mix {

/// For each sample the largest magnitude that the waveform reaches there or on the way to the next
/// sample, at four times the resolution. Far below full scale, which is 1, it is just the sample's
/// own magnitude.
std::vector<double> peaksOf(const std::vector<double>& samples);

}  // namespace host::demo_mix

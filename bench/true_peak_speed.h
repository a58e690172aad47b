#pragma once

#include <cstddef>
#include <vector>

namespace bench {

/// Speed of metering one channel, in samples per second.
struct TruePeakSpeed {
  double meter = 0;
  double libebur128 = 0;
  double ratio() const { return meter / libebur128; }
};

/// Meters `samples` at 48 kHz in blocks of 512 with the unit's meter and with libebur128 in
/// true-peak mode, by turns in one thread, and returns the median of `rounds` (at least 1) of each.
TruePeakSpeed measureTruePeakSpeed(const std::vector<float>& samples, int rounds);

/// The share of one core that metering both signals of a stereo unit takes at 48 kHz in blocks of
/// `block` frames; the median of `rounds`.
double measureMeteringLoad(const std::vector<float>& samples, std::size_t block, int rounds);

}  // namespace bench

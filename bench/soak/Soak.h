#pragma once

#include <cstddef>

namespace soak {

struct Wear {
  std::size_t changes = 0;
  std::size_t switches = 0;
  /// Memory in use by the process before and after, bytes; 0 under sanitizers, which do not count
  /// it.
  std::size_t memoryBefore = 0;
  std::size_t memoryAfter = 0;
  /// Of the encoded signal relative to the source, samples.
  double offsetBefore = 0;
  double offsetAfter = 0;
  /// Samples of the monitored source that differ from the input.
  std::size_t wrongSourceSamples = 0;
};

/// Changes the encoder and switches the monitor of one unit at random, offline, at least that many
/// times each, and measures memory and alignment before and after.
Wear changeAndSwitch(std::size_t changes, std::size_t switches, unsigned seed);

struct Endurance {
  double seconds = 0;
  std::size_t samplesOutOfRange = 0;
  unsigned long long codecFailures = 0;
  unsigned long long missedFrames = 0;
};

/// Renders that many seconds of audio offline, as fast as possible, in blocks of random size, while
/// another thread operates everything at random.
Endurance renderForLong(double seconds, unsigned seed);

}  // namespace soak

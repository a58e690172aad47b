#pragma once

#include <cstddef>

namespace soak {

struct Wear {
  std::size_t changes = 0;
  std::size_t switches = 0;
  /// Of the process, before and after, bytes; 0 under sanitizers, which keep no such count.
  std::size_t memoryBefore = 0;
  std::size_t memoryAfter = 0;
  /// Of the encoded signal against the source, samples.
  double offsetBefore = 0;
  double offsetAfter = 0;
  /// Samples of the source that are not what went in.
  std::size_t wrongSourceSamples = 0;
};

/// Changes the encoder and switches the monitor of one unit at random, off line, at least so many
/// times each, and measures memory and alignment before and after.
Wear changeAndSwitch(std::size_t changes, std::size_t switches, unsigned seed);

struct Endurance {
  double seconds = 0;
  std::size_t samplesOutOfRange = 0;
  unsigned long long codecFailures = 0;
  unsigned long long missedFrames = 0;
};

/// Renders so many seconds of audio as fast as it goes, off line, in blocks of random size, while
/// another thread operates everything at random.
Endurance renderForLong(double seconds, unsigned seed);

}  // namespace soak

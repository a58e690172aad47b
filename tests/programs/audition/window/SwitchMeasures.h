#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "Sound.h"

/// Frames of a cross-fade at 44.1 kHz.
inline constexpr std::size_t kFade = 441;

struct Click {
  /// The first frame after it.
  std::size_t frame = 0;
  bool fromSource = false;
  bool toSource = false;

  bool switches() const { return fromSource != toSource; }
};

/// The room's file, what the converter makes of it, and what was heard over many clicks.
struct Listened {
  Sound source;
  Sound encoded;
  Sound output;
  /// The same with every switch the other way.
  Sound mirrored;
  std::vector<Click> clicks;

  const std::vector<float>& signal(bool isSource, std::size_t channel) const {
    return (isSource ? source : encoded).planes[channel];
  }
};

/// The share of the new signal, by samples since the click: the one that explains the output best
/// over all these switches.
std::vector<double> shareOfTheNew(const Listened& listened, const std::vector<Click>& clicks);

/// Samples until the new signal is there, on an average.
double delayOf(const std::vector<double>& share);

/// The largest difference between the output and what the share makes of the two signals.
double unexplained(const Listened& listened, const std::vector<Click>& clicks,
                   const std::vector<double>& share);

/// What a listener could measure of one switch.
struct Look {
  /// Largest step, over the largest of either signal around it.
  double step = 0;
  /// Level over what the two levels mix to, dB, at its lowest.
  double dip = 0;
};

Look lookAt(const Listened& listened, const Sound& output, std::size_t frame, bool toSource,
            const std::vector<double>& share);

/// Mean and standard error of the mean.
std::pair<double, double> meanOf(const std::vector<double>& values);

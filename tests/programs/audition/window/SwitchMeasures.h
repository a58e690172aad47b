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

/// The room's file, its encoded signal, and what was heard over many clicks.
struct Listened {
  Sound source;
  Sound encoded;
  Sound output;
  /// The same with every switch in the other direction.
  Sound mirrored;
  std::vector<Click> clicks;

  const std::vector<float>& signal(bool isSource, std::size_t channel) const {
    return (isSource ? source : encoded).planes[channel];
  }
};

/// The share of the new signal that best explains the output over all these switches, by samples
/// since the click.
std::vector<double> shareOfTheNew(const Listened& listened, const std::vector<Click>& clicks);

/// Average number of samples until the new signal is there.
double delayOf(const std::vector<double>& share);

/// The largest difference between the output and the two signals mixed by that share.
double unexplained(const Listened& listened, const std::vector<Click>& clicks,
                   const std::vector<double>& share);

/// What a listener could measure about one switch.
struct Look {
  /// The largest step, relative to the largest of either signal around it.
  double step = 0;
  /// The lowest level, in dB relative to the mix of the two signals' levels.
  double dip = 0;
};

Look lookAt(const Listened& listened, const Sound& output, std::size_t frame, bool toSource,
            const std::vector<double>& share);

/// Mean and standard error of the mean.
std::pair<double, double> meanOf(const std::vector<double>& values);

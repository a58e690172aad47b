#include "programs/demo_mix/Drums.h"

#include <cmath>
#include <numbers>

#include "programs/demo_mix/Filter.h"
#include "programs/demo_mix/Noise.h"

namespace host::demo_mix {
namespace {

/// Noise between about 7.5 and 13 kHz.
class Cymbal {
 public:
  explicit Cymbal(std::uint32_t seed) : noise_(seed) {}

  double next() { return soft_.next(softer_.next(bright_.next(noise_.next()).high).low).low; }

 private:
  Noise noise_;
  Filter bright_{7500};
  Filter soft_{13000};
  Filter softer_{13000};
};

}  // namespace

void playKick(Stereo& mix, std::size_t at) {
  constexpr double deepest = 47;
  constexpr double sweep = 210;
  constexpr double sweepSeconds = 0.028;
  constexpr double decaySeconds = 0.14;
  double turns = 0;
  for (std::size_t i = 0; i < framesIn(0.45); ++i) {
    const double time = static_cast<double>(i) / kSampleRate;
    turns += (deepest + sweep * std::exp(-time / sweepSeconds)) / kSampleRate;
    const double click = 0.25 * std::exp(-time / 0.002);
    const double body = std::sin(2 * std::numbers::pi * turns) * std::exp(-time / decaySeconds);
    mix.add(at + i, body + click, body + click);
  }
}

void playClap(Stereo& mix, std::size_t at, std::uint32_t seed) {
  // Several hands, different ones on each side, a few milliseconds apart.
  Noise noiseLeft(2 * seed);
  Noise noiseRight(2 * seed + 1);
  Filter left(1500, 0.9);
  Filter right(1700, 0.9);
  for (std::size_t i = 0; i < framesIn(0.25); ++i) {
    const double time = static_cast<double>(i) / kSampleRate;
    const double hand = time < 0.024 ? std::fmod(time, 0.008) : time - 0.024;
    const double fading = time < 0.024 ? 0.004 : 0.07;
    const double level = 0.7 * std::exp(-hand / fading);
    mix.add(at + i, level * left.next(noiseLeft.next()).band,
            level * right.next(noiseRight.next()).band);
  }
}

void playHat(Stereo& mix, std::size_t at, double level, bool isOpen, std::uint32_t seed) {
  Cymbal left(2 * seed);
  Cymbal right(2 * seed + 1);
  const double decaySeconds = isOpen ? 0.09 : 0.02;
  for (std::size_t i = 0; i < framesIn(5 * decaySeconds); ++i) {
    const double now = level * std::exp(-static_cast<double>(i) / kSampleRate / decaySeconds);
    mix.add(at + i, now * left.next(), now * right.next());
  }
}

}  // namespace host::demo_mix

#include "programs/demo_mix/Arpeggio.h"

#include <cmath>
#include <numbers>

namespace host::demo_mix {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

void playBell(Stereo& mix, int note, std::size_t at, double toLeft, double toRight) {
  const double hertz = hertzOf(note);
  for (std::size_t i = 0; i < framesIn(0.5); ++i) {
    const double time = static_cast<double>(i) / kSampleRate;
    const double bright = 2.2 * std::exp(-time / 0.05) * std::sin(kTurn * 3 * hertz * time);
    const double sample = std::exp(-time / 0.11) * std::sin(kTurn * hertz * time + bright);
    mix.add(at + i, toLeft * sample, toRight * sample);
  }
}

}  // namespace

void playArpeggio(Stereo& mix, const Bar& bar, std::size_t firstSixteenth) {
  constexpr std::array<std::size_t, 8> order = {0, 2, 1, 3, 2, 3, 1, 2};
  constexpr std::size_t echo = 3;
  for (std::size_t i = 0; i < kSixteenthsPerBar; ++i) {
    if (i % 4 == 1) continue;
    const int note = bar.chord[order[i % order.size()]] + 12 + (i >= 8 ? 12 : 0);
    const bool isLeft = i % 2 == 0;
    const double near = 0.8;
    const double far = 0.25;
    playBell(mix, note, frameOf(firstSixteenth + i), isLeft ? near : far, isLeft ? far : near);
    playBell(mix, note, frameOf(firstSixteenth + i + echo), isLeft ? 0 : 0.4, isLeft ? 0.4 : 0);
  }
}

}  // namespace host::demo_mix

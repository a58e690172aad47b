#include "programs/demo_mix/Bass.h"

#include <algorithm>
#include <cmath>

#include "programs/demo_mix/Filter.h"
#include "programs/demo_mix/Saw.h"

namespace host::demo_mix {
namespace {

void playNote(Stereo& mix, int note, std::size_t at) {
  constexpr double noteSeconds = 0.22;
  Saw saw(hertzOf(note));
  Filter filter(200, 1.3);
  for (std::size_t i = 0; i < framesIn(noteSeconds); ++i) {
    const double time = static_cast<double>(i) / kSampleRate;
    filter.tune(140 + 1100 * std::exp(-time / 0.06));
    const double level = std::min({1.0, time / 0.003, (noteSeconds - time) / 0.02});
    const double sample = level * std::tanh(1.6 * filter.next(saw.next()).low);
    mix.add(at + i, sample, sample);
  }
}

}  // namespace

void playBass(Stereo& mix, const Bar& bar, std::size_t firstSixteenth) {
  constexpr std::array<int, 8> octaves = {0, 0, 12, 0, 0, 12, 0, 12};
  for (std::size_t i = 0; i < octaves.size(); ++i) {
    playNote(mix, bar.root + octaves[i], frameOf(firstSixteenth + 2 * i));
  }
}

}  // namespace host::demo_mix

#include "programs/demo_mix/Chords.h"

#include <algorithm>
#include <cmath>

#include "programs/demo_mix/Filter.h"
#include "programs/demo_mix/Saw.h"

namespace host::demo_mix {
namespace {

struct Side {
  std::vector<Saw> saws;
  Filter filter{2200};

  double next() {
    double sum = 0;
    for (auto& saw : saws) sum += saw.next();
    return filter.next(sum).low;
  }
};

}  // namespace

void playChord(Stereo& mix, const Bar& bar, std::size_t firstSixteenth) {
  Side left;
  Side right;
  double phase = 0.13;
  const auto addSaw = [&](Side& side, int note, double cents) {
    // A step of the golden ratio spreads the phases evenly.
    phase = std::fmod(phase + 0.6180339887, 1.0);
    side.saws.emplace_back(hertzOf(note) * std::exp2(cents / 1200), phase);
  };
  for (const int note : bar.chord) {
    for (const double cents : {-9.0, 4.0}) addSaw(left, note, cents);
    for (const double cents : {-3.0, 10.0}) addSaw(right, note, cents);
  }
  const auto begin = frameOf(firstSixteenth);
  const auto length = frameOf(firstSixteenth + kSixteenthsPerBar) - begin;
  constexpr double fadeFrames = 0.02 * kSampleRate;
  for (std::size_t i = 0; i < length; ++i) {
    const double position = static_cast<double>(i) / static_cast<double>(length);
    const double cutoff = bar.isFull ? 2600 + 3200 * position : 900 + 1900 * position;
    left.filter.tune(cutoff);
    right.filter.tune(cutoff);
    const double level = 0.1 * std::min({1.0, static_cast<double>(i) / fadeFrames,
                                         static_cast<double>(length - i) / fadeFrames});
    const double fromLeft = level * left.next();
    const double fromRight = level * right.next();
    mix.add(begin + i, fromLeft + 0.2 * fromRight, fromRight + 0.2 * fromLeft);
  }
}

}  // namespace host::demo_mix

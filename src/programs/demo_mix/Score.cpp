#include "programs/demo_mix/Score.h"

#include <cmath>

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {
namespace {

constexpr std::size_t kBarsOfPiece = 12;
constexpr std::size_t kBarsOfOpening = 4;

}  // namespace

Bar barAt(std::size_t number) {
  static constexpr std::array<Bar, 4> progression = {{{33, {57, 60, 64, 67}, true},
                                                      {29, {57, 60, 64, 65}, true},
                                                      {36, {55, 60, 64, 71}, true},
                                                      {31, {55, 59, 62, 69}, true}}};
  auto bar = progression[number % progression.size()];
  bar.isFull = number % kBarsOfPiece >= kBarsOfOpening;
  return bar;
}

double hertzOf(int note) {
  return 440 * std::exp2((note - 69) / 12.0);
}

std::size_t frameOf(std::size_t sixteenth) {
  return framesIn(static_cast<double>(sixteenth) * kSecondsPerSixteenth);
}

}  // namespace host::demo_mix

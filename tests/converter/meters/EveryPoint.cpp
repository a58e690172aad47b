#include "EveryPoint.h"

#include <algorithm>
#include <cmath>

#include "converter/InterSampleGrid.h"

using converter::EighthGrid;
using converter::HalfGrid;

EveryPointReadings everyPoint(const std::vector<float>& samples, std::size_t first,
                              std::size_t last) {
  constexpr std::size_t margin = 64;
  std::vector<float> padded(margin);
  padded.insert(padded.end(), samples.begin(), samples.end());
  padded.resize(padded.size() + margin);
  EveryPointReadings readings;
  for (std::size_t n = first; n < last; ++n) {
    const float* const here = padded.data() + margin + n;
    HalfGrid<float> half{};
    for (int step = -5; step <= 7; ++step) {
      const float* const left = here + (step + 6) / 2 - 3;
      half.points[static_cast<std::size_t>(step + 5)] =
          step % 2 == 0 ? *left : converter::midpoint(converter::kHalfFilter, left);
    }
    const EighthGrid<float> eighth = eighthGrid(quarterGrid(half));
    float largest = 0;
    for (int step = 0; step < 8; ++step) largest = std::max(largest, std::fabs(eighth[step]));
    for (float point : sixteenths(eighth)) largest = std::max(largest, std::fabs(point));
    readings.peak = std::max(readings.peak, largest);
    readings.overs += largest > 1.0F ? 1 : 0;
  }
  return readings;
}

#include "EveryPoint.h"

#include <algorithm>
#include <cmath>

#include "converter/meters/InterSampleGrid.h"

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
    HalfGrid<float> half{};
    for (std::size_t i = 0; i < half.points.size(); ++i) {
      const float* const left = padded.data() + (margin + n - 3 + (i + 1) / 2);
      half.points[i] = i % 2 == 0 ? converter::midpoint(converter::kHalfFilter, left) : *left;
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

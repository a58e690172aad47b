#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "converter/meters/InterSampleGrid.h"

namespace converter {

/// A point of the interpolated signal as a weighted sum of `Count` coarser points.
template <std::size_t Count>
struct PointWeights {
  std::array<double, Count> of{};

  friend constexpr PointWeights operator+(PointWeights a, const PointWeights& b) {
    for (std::size_t i = 0; i < Count; ++i) a.of[i] += b.of[i];
    return a;
  }
  friend constexpr PointWeights operator*(PointWeights a, double factor) {
    for (double& weight : a.of) weight *= factor;
    return a;
  }
};

constexpr double magnitude(double value) {
  return value < 0 ? -value : value;
}

/// The sum of the weights' magnitudes: the most by which the point can exceed the largest of the
/// coarser points, as a factor.
template <std::size_t Count>
constexpr double gain(const PointWeights<Count>& point) {
  double sum = 0;
  for (double weight : point.of) sum += magnitude(weight);
  return sum;
}

/// A bound on how far points lie from the straight line between the two coarse points around them:
/// `bend` times the largest second difference of the coarse points, plus `rest` times the largest
/// coarse point. `rest` stems from the filters' headroom and is less than 0.0001.
struct DistanceFromLine {
  double bend = 0;
  double rest = 0;

  constexpr void include(const DistanceFromLine& other) {
    bend = std::max(bend, other.bend);
    rest = std::max(rest, other.rest);
  }
};

/// The distance of one point, which lies `fraction` of the way from coarse point `left` to the
/// next: subtracts the line, then rewrites the remaining weights as second differences from one end
/// to the other.
template <std::size_t Count>
constexpr DistanceFromLine distanceFromLine(PointWeights<Count> point, std::size_t left,
                                            double fraction) {
  point.of[left] -= 1 - fraction;
  point.of[left + 1] -= fraction;
  DistanceFromLine distance;
  for (std::size_t i = 0; i + 2 < Count; ++i) {
    const double weight = point.of[i];
    distance.bend += magnitude(weight);
    point.of[i + 1] += 2 * weight;
    point.of[i + 2] -= weight;
    point.of[i] = 0;
  }
  distance.rest = gain(point);
  return distance;
}

template <typename Grid, std::size_t Count>
constexpr Grid unitGrid() {
  Grid grid{};
  for (std::size_t i = 0; i < Count; ++i) grid.points[i].of[i] = 1;
  return grid;
}

/// The half grid around one interval, in terms of the samples.
constexpr auto halfGridOfSamples() {
  constexpr std::size_t reach = kHalfFilter.size() + 3;
  std::array<PointWeights<2 * reach + 2>, 2 * reach + 2> samples{};
  for (std::size_t i = 0; i < samples.size(); ++i) samples[i].of[i] = 1;
  HalfGrid<PointWeights<2 * reach + 2>> grid{};
  // The grid starts half-way between the third and the second sample before the interval's own.
  for (std::size_t i = 0; i < grid.points.size(); ++i) {
    const auto* const sample = samples.data() + (reach - 3 + (i + 1) / 2);
    grid.points[i] = i % 2 == 0 ? midpoint(kHalfFilter, sample) : *sample;
  }
  return grid;
}

/// The factor by which the interpolated signal can at most exceed the largest sample around it.
constexpr double interpolationGain() {
  const auto half = halfGridOfSamples();
  const auto eighth = eighthGrid(quarterGrid(half));
  double largest = 1;
  for (int step = 0; step < 8; ++step) largest = std::max(largest, gain(eighth[step]));
  for (const auto& point : sixteenths(eighth)) largest = std::max(largest, gain(point));
  return largest;
}

/// The largest distance of all points of an interval. Its own sample is coarse point `own`, and the
/// next sample is `steps` coarse points further.
template <std::size_t Count>
constexpr DistanceFromLine distanceOfInterval(const EighthGrid<PointWeights<Count>>& eighth,
                                              std::size_t own, std::size_t steps) {
  const auto last = sixteenths(eighth);
  const std::size_t perStep = 16 / steps;
  DistanceFromLine largest;
  for (std::size_t i = 0; i < 16; ++i) {
    const auto& point = i % 2 == 0 ? eighth[static_cast<int>(i / 2)] : last[i / 2];
    const double fraction = static_cast<double>(i % perStep) / static_cast<double>(perStep);
    largest.include(distanceFromLine(point, own + i / perStep, fraction));
  }
  return largest;
}

constexpr DistanceFromLine distanceFromHalfGrid() {
  return distanceOfInterval(eighthGrid(quarterGrid(unitGrid<HalfGrid<PointWeights<13>>, 13>())), 5,
                            2);
}

constexpr DistanceFromLine distanceFromQuarterGrid() {
  return distanceOfInterval(eighthGrid(unitGrid<QuarterGrid<PointWeights<11>>, 11>()), 3, 4);
}

}  // namespace converter

#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "converter/meters/MidpointFilter.h"

namespace converter {

/// The interpolation that defines inter-sample peaks and overs: sixteen points in each sample
/// interval, reached by doubling the grid four times. Only the first doubling needs a steep filter
/// (flat within 0.02 dB up to 0.45 of the sample rate); each further one works on a signal twice as
/// oversampled and makes do with fewer neighbours.
inline constexpr auto kHalfFilter = kaiserMidpointFilter<20>(6.0);
inline constexpr auto kQuarterFilter = kaiserMidpointFilter<4>(6.1);
inline constexpr auto kEighthFilter = lagrangeMidpointFilter<3>();
inline constexpr auto kSixteenthFilter = lagrangeMidpointFilter<2>();

/// The points of a grid around one sample interval, indexed by their step from the interval's own
/// sample: `First` to `Last`.
template <typename Value, int First, int Last>
struct GridStretch {
  std::array<Value, Last - First + 1> points;

  constexpr const Value& operator[](int step) const {
    return points[static_cast<std::size_t>(step - First)];
  }
  constexpr const Value* at(int step) const {
    return points.data() + static_cast<std::size_t>(step - First);
  }
};

/// The points that the finer points of one interval depend on, on grids of two, four and eight
/// points per sample interval.
template <typename Value>
using HalfGrid = GridStretch<Value, -5, 7>;
template <typename Value>
using QuarterGrid = GridStretch<Value, -3, 7>;
template <typename Value>
using EighthGrid = GridStretch<Value, -1, 9>;

template <int Step, typename Coarse, std::size_t Pairs>
[[gnu::always_inline]] constexpr auto pointOfDoubled(const MidpointFilter<Pairs>& filter,
                                                     const Coarse& coarse) {
  if constexpr (Step % 2 == 0) {
    return coarse[Step / 2];
  } else {
    return midpoint(filter, coarse.at((Step - 1) / 2));
  }
}

/// Doubles a grid from step `First` on: keeps every point and inserts a midpoint after it.
template <typename Fine, int First, typename Coarse, std::size_t Pairs, int... Offset>
[[gnu::always_inline]] constexpr Fine doubled(const MidpointFilter<Pairs>& filter,
                                              const Coarse& coarse,
                                              std::integer_sequence<int, Offset...>) {
  return Fine{{pointOfDoubled<First + Offset>(filter, coarse)...}};
}

template <typename Value>
[[gnu::always_inline]] constexpr QuarterGrid<Value> quarterGrid(const HalfGrid<Value>& half) {
  return doubled<QuarterGrid<Value>, -3>(kQuarterFilter, half,
                                         std::make_integer_sequence<int, 11>{});
}

template <typename Value>
[[gnu::always_inline]] constexpr EighthGrid<Value> eighthGrid(const QuarterGrid<Value>& quarter) {
  return doubled<EighthGrid<Value>, -1>(kEighthFilter, quarter,
                                        std::make_integer_sequence<int, 11>{});
}

template <typename Value, int... Step>
[[gnu::always_inline]] constexpr std::array<Value, 8> midpointsFrom(
    const EighthGrid<Value>& eighth, std::integer_sequence<int, Step...>) {
  return {midpoint(kSixteenthFilter, eighth.at(Step))...};
}

/// The eight points that the last doubling adds to the interval.
template <typename Value>
[[gnu::always_inline]] constexpr std::array<Value, 8> sixteenths(const EighthGrid<Value>& eighth) {
  return midpointsFrom(eighth, std::make_integer_sequence<int, 8>{});
}

}  // namespace converter

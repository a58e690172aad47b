#pragma once

#include <array>
#include <cstddef>
#include <numbers>
#include <utility>

namespace converter {

/// A filter for the value half-way between two points of an evenly sampled signal. It is symmetric:
/// one weight for each pair of neighbours, from the nearest pair outward.
template <std::size_t Pairs>
using MidpointFilter = std::array<float, Pairs>;

/// By how much the sum of a filter's weights is less than 1, so that rounding never lifts a
/// constant full-scale signal above full scale. 17 millionths of a decibel.
inline constexpr double kMidpointHeadroom = 1.0 / (1 << 19);

template <std::size_t Pairs>
constexpr MidpointFilter<Pairs> normalized(const std::array<double, Pairs>& shape) {
  double sum = 0;
  for (double weight : shape) sum += 2 * weight;
  MidpointFilter<Pairs> filter{};
  for (std::size_t j = 0; j < Pairs; ++j) {
    filter[j] = static_cast<float>(shape[j] / sum * (1 - kMidpointHeadroom));
  }
  return filter;
}

/// Modified Bessel function of the first kind, order 0, of the square root of `squared`: the power
/// series, whose 40 terms are exact to double precision for arguments up to 20.
constexpr double besselI0OfRoot(double squared) {
  double sum = 1;
  double term = 1;
  for (int k = 1; k <= 40; ++k) {
    term *= squared / (4.0 * k * k);
    sum += term;
  }
  return sum;
}

/// A sinc under a Kaiser window of shape `beta` (J. F. Kaiser, 1974).
template <std::size_t Pairs>
constexpr MidpointFilter<Pairs> kaiserMidpointFilter(double beta) {
  std::array<double, Pairs> shape{};
  for (std::size_t j = 0; j < Pairs; ++j) {
    const double distance = static_cast<double>(j) + 0.5;
    const double place = distance / static_cast<double>(Pairs);
    const double window = besselI0OfRoot(beta * beta * (1 - place * place));
    const double sinc = (j % 2 == 0 ? 1 : -1) / (std::numbers::pi * distance);
    shape[j] = sinc * window;
  }
  return normalized(shape);
}

/// The polynomial through the neighbours, evaluated half-way (Lagrange).
template <std::size_t Pairs>
constexpr MidpointFilter<Pairs> lagrangeMidpointFilter() {
  std::array<double, Pairs> shape{};
  for (std::size_t j = 0; j < Pairs; ++j) {
    const double here = static_cast<double>(j) + 0.5;
    double weight = 1;
    for (std::size_t k = 0; k < Pairs; ++k) {
      const double other = static_cast<double>(k) + 0.5;
      weight *= other / (here + other);
      if (k != j) weight *= -other / (here - other);
    }
    shape[j] = weight;
  }
  return normalized(shape);
}

template <typename Value, std::size_t Pairs, std::size_t... J>
[[gnu::always_inline]] constexpr Value sumOfPairs(const MidpointFilter<Pairs>& filter,
                                                  const Value* left, std::index_sequence<J...>) {
  // No fused multiply-add: the same bits on every processor. GCC fuses none in the ISO language
  // modes.
#ifdef __clang__
#pragma clang fp contract(off)
#endif
  return (... + ((*(left - J) + *(left + 1 + J)) * filter[J]));
}

/// The value half-way between `left[0]` and `left[1]`. The order of the additions is fixed, so that
/// every caller gets the same bits. Inlined, so that loops over it can be vectorised.
template <typename Value, std::size_t Pairs>
[[gnu::always_inline]] constexpr Value midpoint(const MidpointFilter<Pairs>& filter,
                                                const Value* left) {
  return sumOfPairs(filter, left, std::make_index_sequence<Pairs>{});
}

}  // namespace converter

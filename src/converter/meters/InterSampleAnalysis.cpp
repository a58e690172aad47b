#include "converter/meters/InterSampleAnalysis.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#include "converter/meters/InterSampleBounds.h"
#include "converter/meters/VectorClones.h"

// Clang does not see by itself that the lanes of such a short loop are independent. Under
// sanitizers it does not vectorise, and would warn about the pragma.
#if defined(__clang__) && !defined(VELK_SANITIZED)
#define VELK_INDEPENDENT_LANES _Pragma("clang loop vectorize(assume_safety)")
#else
#define VELK_INDEPENDENT_LANES
#endif

// Only the entry point has vector clones, so everything that it calls must be inlined into it.
#define VELK_INLINE [[gnu::always_inline]] inline

namespace converter {
namespace {

using Index = std::ptrdiff_t;

constexpr std::size_t kLanes = 8;
/// Room on both sides of a run for the points that its outer intervals depend on.
constexpr Index kMargin = 8;
constexpr std::size_t kWidth = kMaximumIntervals + 2 * kMargin + kRow;

constexpr float kGain = static_cast<float>(interpolationGain() * 1.0001);
constexpr float kHalfBend = static_cast<float>(distanceFromHalfGrid().bend);
constexpr float kQuarterBend = static_cast<float>(distanceFromQuarterGrid().bend);
/// Relative to the loudest sample: more than all rounding errors here can add up to.
constexpr double kRounding = 3e-5;
constexpr float kSlack =
    static_cast<float>(kRounding + interpolationGain() * std::max(distanceFromHalfGrid().rest,
                                                                  distanceFromQuarterGrid().rest));

template <std::size_t Count>
using Row = std::array<float, Count>;

VELK_INLINE float larger(float a, float b) {
  return a > b ? a : b;
}

/// Non-negative floats are ordered like their bits, and unlike a float maximum an integer maximum
/// may be vectorised.
VELK_INLINE std::int32_t magnitudeBits(float value) {
  return std::bit_cast<std::int32_t>(value) & 0x7fffffff;
}

template <std::size_t... I>
VELK_INLINE float largestMagnitude(const float* points, std::index_sequence<I...>) {
  float largest = 0;
  ((largest = larger(largest, std::fabs(points[I]))), ...);
  return largest;
}

template <std::size_t... I>
VELK_INLINE float largestBend(const float* points, std::index_sequence<I...>) {
  float largest = 0;
  ((largest = larger(largest, std::fabs(points[I] - 2 * points[I + 1] + points[I + 2]))), ...);
  return largest;
}

VELK_INLINE float loudestAround(const float* samples, Index count) {
  std::int32_t loudest = 0;
  for (Index i = -static_cast<Index>(kSamplesBefore); i < count + static_cast<Index>(kSamplesAfter);
       ++i) {
    loudest = std::max(loudest, magnitudeBits(samples[i]));
  }
  return std::bit_cast<float>(loudest);
}

/// Whether the points not yet computed could change a reading.
VELK_INLINE bool isUndecided(float bound, float known, float peak) {
  return (bound > peak) | ((bound > 1.0F) & (known <= 1.0F));
}

/// Analyses one run of intervals: keeps the largest point known of each, and refines only those
/// whose remaining points could still change a reading.
class Run {
 public:
  VELK_INLINE Run(const float* samples, Index count, InterSampleReadings& readings)
      : samples_(samples), count_(count), readings_(readings) {}

  VELK_INLINE void analyse() {
    const float loudest = loudestAround(samples_, count_);
    if (loudest * kGain <= std::min(1.0F, readings_.peak)) return;
    slack_ = loudest * kSlack;
    computeHalfGrid();
    takeHalfGrid();
    markUndecided();
    for (Index at = 0; at < count_; at += kLanes) {
      std::uint64_t open = 0;
      std::memcpy(&open, &open_[static_cast<std::size_t>(at)], sizeof open);
      if (open != 0) refine(at);
    }
  }

 private:
  VELK_INLINE float* half() { return half_.data() + kMargin; }
  VELK_INLINE float* bend() { return bend_.data() + kMargin; }

  VELK_INLINE void computeHalfGrid() {
    const Index rows = (count_ + static_cast<Index>(kRow) - 1) / static_cast<Index>(kRow);
    const Index end = rows * static_cast<Index>(kRow) + 4;
    const float* const samples = samples_;
    float* const half = this->half();
    float* const bend = this->bend();
    for (Index i = -3; i < end; ++i) half[i] = midpoint(kHalfFilter, samples + i);
    for (Index i = -2; i < end - 1; ++i) {
      const float atSample = std::fabs(half[i - 1] - 2 * samples[i] + half[i]);
      const float atHalf = std::fabs(samples[i] - 2 * half[i] + samples[i + 1]);
      bend[i] = larger(atSample, atHalf);
    }
  }

  VELK_INLINE void takeHalfGrid() {
    const float* const half = this->half();
    float* const known = known_.data();
    std::int32_t peak = std::bit_cast<std::int32_t>(readings_.peak);
    std::int32_t overs = 0;
    for (Index i = 0; i < count_; ++i) {
      known[i] = larger(std::fabs(samples_[i]), std::fabs(half[i]));
      peak = std::max(peak, magnitudeBits(known[i]));
      overs += known[i] > 1.0F ? 1 : 0;
    }
    std::memset(known + count_, 0, kLanes * sizeof *known);
    readings_.peak = std::bit_cast<float>(peak);
    readings_.overs += overs;
  }

  VELK_INLINE void markUndecided() {
    const float* const samples = samples_;
    const float* const known = known_.data();
    const float* const bend = this->bend();
    const float peak = readings_.peak;
    const float slack = slack_;
    for (Index i = 0; i < count_; ++i) {
      const float before = larger(bend[i - 2], bend[i - 1]);
      const float here = larger(bend[i], bend[i + 1]);
      const float after = larger(bend[i + 2], bend[i + 3]);
      const float largest = larger(larger(before, here), after);
      const float ends = larger(known[i], std::fabs(samples[i + 1]));
      const float bound = ends + kHalfBend * largest + slack;
      open_[static_cast<std::size_t>(i)] = isUndecided(bound, known[i], peak) ? 1 : 0;
    }
    std::memset(&open_[static_cast<std::size_t>(count_)], 0, kLanes);
  }

  /// Computes as many points of the `kLanes` intervals from `at` on as it takes to decide them.
  VELK_INLINE void refine(Index at) {
    alignas(32) std::array<Row<kLanes>, 11> quarters;
    alignas(32) Row<kLanes> top;
    std::int32_t undecided = 0;
    const float peak = readings_.peak;
    const float slack = slack_;
    const float* const samples = samples_ + at;
    const float* const half = this->half() + at;
    VELK_INDEPENDENT_LANES
    for (std::size_t lane = 0; lane < kLanes; ++lane) {
      const float* const s = samples + lane;
      const float* const h = half + lane;
      const QuarterGrid<float> quarter = quarterGrid(HalfGrid<float>{
          {h[-3], s[-2], h[-2], s[-1], h[-1], s[0], h[0], s[1], h[1], s[2], h[2], s[3], h[3]}});
      scatter(quarter, quarters, lane, std::make_index_sequence<11>{});
      top[lane] = largestMagnitude(quarter.at(0), std::make_index_sequence<4>{});
      const float ends = larger(top[lane], std::fabs(quarter[4]));
      const float largest = largestBend(quarter.at(-3), std::make_index_sequence<9>{});
      const float bound = ends + kQuarterBend * largest + slack;
      undecided |= isUndecided(bound, top[lane], peak) ? 1 : 0;
    }
    if (undecided != 0) {
      VELK_INDEPENDENT_LANES
      for (std::size_t lane = 0; lane < kLanes; ++lane) {
        const EighthGrid<float> eighth =
            eighthGrid(gather(quarters, lane, std::make_index_sequence<11>{}));
        const std::array<float, 8> last = sixteenths(eighth);
        top[lane] = larger(largestMagnitude(eighth.at(0), std::make_index_sequence<8>{}),
                           largestMagnitude(last.data(), std::make_index_sequence<8>{}));
      }
    }
    take(top, at);
  }

  template <std::size_t... I>
  VELK_INLINE static void scatter(const QuarterGrid<float>& grid, std::array<Row<kLanes>, 11>& rows,
                                  std::size_t lane, std::index_sequence<I...>) {
    ((rows[I][lane] = grid.points[I]), ...);
  }

  template <std::size_t... I>
  VELK_INLINE static QuarterGrid<float> gather(const std::array<Row<kLanes>, 11>& rows,
                                               std::size_t lane, std::index_sequence<I...>) {
    return {{rows[I][lane]...}};
  }

  VELK_INLINE void take(const Row<kLanes>& top, Index at) {
    std::int32_t peak = std::bit_cast<std::int32_t>(readings_.peak);
    std::int32_t overs = 0;
    const auto valid = static_cast<std::int32_t>(count_ - at);
    const float* const known = known_.data() + at;
    for (std::int32_t lane = 0; lane < static_cast<std::int32_t>(kLanes); ++lane) {
      const float each = lane < valid ? top[static_cast<std::size_t>(lane)] : 0.0F;
      peak = std::max(peak, magnitudeBits(each));
      overs += ((each > 1.0F) & (known[lane] <= 1.0F)) ? 1 : 0;
    }
    readings_.peak = std::bit_cast<float>(peak);
    readings_.overs += overs;
  }

  const float* samples_;
  Index count_;
  InterSampleReadings& readings_;
  float slack_ = 0;
  alignas(64) Row<kWidth> half_;
  alignas(64) Row<kWidth> bend_;
  alignas(64) Row<kMaximumIntervals + kRow> known_;
  alignas(64) std::array<std::uint8_t, kMaximumIntervals + kRow> open_;
};

}  // namespace

VELK_VECTOR_CLONES
void analyseIntervals(const float* samples, std::size_t count,
                      InterSampleReadings& readings) noexcept {
  Run(samples, static_cast<Index>(count), readings).analyse();
}

}  // namespace converter

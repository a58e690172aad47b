#include <array>
#include <cmath>
#include <limits>

#include "Clock.h"
#include "Figure.h"
#include "Rig.h"

namespace figures {
namespace {

constexpr std::size_t kFrames = std::size_t{4} * 44100;
constexpr std::size_t kBlock = 512;
/// Computing with denormal numbers, or retrying, would be many times slower.
constexpr double kGoal = 1.5;
constexpr int kRounds = 5;

struct Odd {
  const char* name;
  float (*sample)(std::size_t);
};

constexpr std::array kSignals = {
    Odd{"odd_silence", [](std::size_t) { return 0.0F; }},
    Odd{"odd_denormals", [](std::size_t i) { return i % 3 == 0 ? 1e-40F : -1e-42F; }},
    Odd{"odd_barely_normal", [](std::size_t i) { return i % 2 == 0 ? 2e-38F : -3e-38F; }},
    Odd{"odd_direct_current", [](std::size_t) { return 1.0F; }},
    Odd{"odd_full_scale_square", [](std::size_t i) { return i / 50 % 2 == 0 ? 1.0F : -1.0F; }},
    Odd{"odd_nan", [](std::size_t) { return std::numeric_limits<float>::quiet_NaN(); }},
    Odd{"odd_infinity",
        [](std::size_t i) {
          return (i % 2 == 0 ? 1.0F : -1.0F) * std::numeric_limits<float>::infinity();
        }},
};

double processorSecondsFor(const Signal& input) {
  Rig rig;
  rig.setPreset(0);
  Signal output = silence(2, kBlock);
  float* const out[] = {output[0].data(), output[1].data()};
  const double start = processorSeconds();
  for (std::size_t at = 0; at + kBlock <= kFrames; at += kBlock) {
    const float* const in[] = {input[0].data() + at, input[1].data() + at};
    rig.unit().render(in, out, kBlock);
  }
  return processorSeconds() - start;
}

/// A unit's processor time on each signal, relative to bright music; the signals take turns.
std::vector<Row> measure() {
  Signal bright = music(2, kFrames, 44100);
  const Signal noise = smoothNoise(2, kFrames, 44100, 20000, 0.3F);
  for (std::size_t channel = 0; channel < 2; ++channel) {
    for (std::size_t i = 0; i < kFrames; ++i) bright[channel][i] += noise[channel][i];
  }
  std::vector<Row> rows;
  for (const Odd& odd : kSignals) {
    Signal input = silence(2, kFrames);
    for (std::size_t i = 0; i < kFrames; ++i) input[0][i] = input[1][i] = odd.sample(i);
    std::vector<double> ratios;
    ratios.reserve(kRounds);
    for (int round = 0; round < kRounds; ++round) {
      ratios.push_back(processorSecondsFor(input) / processorSecondsFor(bright));
    }
    rows.push_back(atMost(odd.name, median(ratios), kGoal, "of music"));
  }
  return rows;
}

}  // namespace

Family oddSignals() {
  std::vector<std::string> names;
  names.reserve(kSignals.size());
  for (const Odd& odd : kSignals) names.emplace_back(odd.name);
  return {names, measure};
}

}  // namespace figures

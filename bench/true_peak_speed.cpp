#include "true_peak_speed.h"

#include <ebur128.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <stdexcept>

#include "converter/meters/SignalMeters.h"
#include "converter/meters/TruePeakMeter.h"

namespace bench {
namespace {

constexpr std::size_t kBlock = 512;
constexpr unsigned long kRate = 48000;

/// Measures processor time, so that other programs do not count.
template <typename Work>
double secondsOf(Work&& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

template <typename Take>
void inBlocks(const std::vector<float>& samples, std::size_t block, Take&& take) {
  for (std::size_t at = 0; at < samples.size(); at += block) {
    take(samples.data() + at, std::min(block, samples.size() - at));
  }
}

void meterWithLibebur128(const std::vector<float>& samples) {
  ebur128_state* state = ebur128_init(1, kRate, EBUR128_MODE_TRUE_PEAK);
  if (state == nullptr) throw std::runtime_error("libebur128 cannot be opened");
  inBlocks(samples, kBlock, [&](const float* block, std::size_t frames) {
    ebur128_add_frames_float(state, block, frames);
  });
  ebur128_destroy(&state);
}

}  // namespace

TruePeakSpeed measureTruePeakSpeed(const std::vector<float>& samples, int rounds) {
  std::vector<double> own;
  std::vector<double> other;
  for (int round = 0; round < rounds; ++round) {
    own.push_back(secondsOf([&] {
      converter::TruePeakMeter meter;
      inBlocks(samples, kBlock,
               [&](const float* block, std::size_t frames) { meter.process(block, frames); });
    }));
    other.push_back(secondsOf([&] { meterWithLibebur128(samples); }));
  }
  const auto count = static_cast<double>(samples.size());
  return {count / median(own), count / median(other)};
}

double measureMeteringLoad(const std::vector<float>& samples, std::size_t block, int rounds) {
  std::vector<double> turns;
  turns.reserve(static_cast<std::size_t>(rounds));
  for (int round = 0; round < rounds; ++round) {
    turns.push_back(secondsOf([&] {
      converter::SignalMeters meters(2);
      inBlocks(samples, block, [&](const float* plane, std::size_t frames) {
        const std::array<const float*, 2> planes{plane, plane};
        const std::array whole{converter::Stretch{frames, converter::Soundness::sound}};
        meters.process(planes.data(), planes.data(), frames, whole);
      });
    }));
  }
  return median(turns) / (static_cast<double>(samples.size()) / static_cast<double>(kRate));
}

}  // namespace bench

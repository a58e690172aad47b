#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <vector>

#include "MeterSignals.h"
#include "true_peak_speed.h"

// Each row measures the unit's meter and libebur128 on the same signal by turns, so that the ratio
// holds on a busy machine, too. "hot" is the share of samples above 0.7.

namespace {

using Samples = meter_signals::Samples;

constexpr std::size_t kFrames = 480000;

void report(benchmark::State& state, const Samples& samples) {
  bench::TruePeakSpeed speed;
  for (auto step : state) speed = bench::measureTruePeakSpeed(samples, 15);
  std::size_t hot = 0;
  for (float sample : samples) hot += std::fabs(sample) > 0.7F ? 1 : 0;
  state.counters["hot"] = static_cast<double>(hot) / static_cast<double>(samples.size());
  state.counters["Msamples/s"] = speed.meter / 1e6;
  state.counters["libebur128"] = speed.libebur128 / 1e6;
  state.counters["ratio"] = speed.ratio();
  state.counters["core%/512"] = 100 * bench::measureMeteringLoad(samples, 512, 9);
  state.counters["core%/64"] = 100 * bench::measureMeteringLoad(samples, 64, 9);
}

void quietMix(benchmark::State& state) {
  report(state, meter_signals::mix(kFrames, 0.3F, 1));
}
void mix(benchmark::State& state) {
  report(state, meter_signals::mix(kFrames, 1.0F, 1));
}
void loudMaster(benchmark::State& state) {
  report(state, meter_signals::hotMix(kFrames, 4, 1));
}
void hotMaster(benchmark::State& state) {
  report(state, meter_signals::hotMix(kFrames, 20, 1));
}
void clippedMix(benchmark::State& state) {
  report(state, meter_signals::clippedMix(kFrames, 8, 1));
}
void brickwall(benchmark::State& state) {
  report(state, meter_signals::clippedMix(kFrames, 40, 1));
}
void clippedNoise(benchmark::State& state) {
  Samples samples = meter_signals::whiteNoise(kFrames, 4, 1);
  for (float& sample : samples) sample = std::tanh(sample);
  report(state, samples);
}

BENCHMARK(quietMix)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(mix)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(loudMaster)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(hotMaster)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(clippedMix)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(brickwall)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(clippedNoise)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();

#include "MeterSignals.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <random>

namespace meter_signals {
namespace {

using std::numbers::pi;

/// A Blackman-windowed low-pass of `2 * reach + 1` taps.
std::vector<double> lowPass(double cutoff, int reach) {
  std::vector<double> taps;
  for (int i = -reach; i <= reach; ++i) {
    const double sinc = i == 0 ? 2 * cutoff : std::sin(2 * pi * cutoff * i) / (pi * i);
    const double place = pi * i / (reach + 1);
    taps.push_back(sinc * (0.42 + 0.5 * std::cos(place) + 0.08 * std::cos(2 * place)));
  }
  return taps;
}

template <typename Value>
std::vector<double> filtered(const std::vector<Value>& input, const std::vector<double>& taps) {
  const std::size_t reach = taps.size() / 2;
  std::vector<double> output(input.size());
  for (std::size_t n = 0; n < input.size(); ++n) {
    const std::size_t first = n < reach ? 0 : n - reach;
    const std::size_t last = std::min(input.size() - 1, n + reach);
    for (std::size_t i = first; i <= last; ++i) {
      output[n] += static_cast<double>(input[i]) * taps[reach + n - i];
    }
  }
  return output;
}

void scaleTo(Samples& samples, float peak) {
  float largest = 0;
  for (float sample : samples) largest = std::max(largest, std::fabs(sample));
  for (float& sample : samples) sample *= peak / largest;
}

}  // namespace

Samples sine(double frequency, double degrees, double amplitude, std::size_t frames) {
  Samples samples(frames);
  for (std::size_t n = 0; n < frames; ++n) {
    const double turns = frequency * static_cast<double>(n) + degrees / 360;
    samples[n] = static_cast<float>(amplitude * std::sin(2 * pi * turns));
  }
  return samples;
}

Samples fadedSine(double frequency, double degrees, double amplitude, std::size_t frames,
                  std::size_t fade) {
  Samples samples = sine(frequency, degrees, amplitude, frames);
  for (std::size_t n = 0; n < fade; ++n) {
    const double place = static_cast<double>(n) / static_cast<double>(fade);
    const auto gain = static_cast<float>(0.5 - 0.5 * std::cos(pi * place));
    samples[n] *= gain;
    samples[frames - 1 - n] *= gain;
  }
  return samples;
}

Samples singleCycle(std::size_t offset) {
  // At the fourfold rate a cycle of fs/6 has 24 points and one of fs/4 has 16.
  constexpr std::size_t before = 1200;
  constexpr std::size_t fade = 480;
  std::vector<double> fine;
  for (std::size_t i = 0; i < before; ++i) fine.push_back(0.5 * std::sin(2 * pi * double(i) / 24));
  for (std::size_t i = 0; i < 16; ++i) fine.push_back(std::sin(2 * pi * double(i) / 16));
  for (std::size_t i = 0; i < before; ++i) fine.push_back(0.5 * std::sin(2 * pi * double(i) / 24));
  for (std::size_t i = 0; i < fade; ++i) {
    const double gain = 0.5 - 0.5 * std::cos(pi * static_cast<double>(i) / fade);
    fine[i] *= gain;
    fine[fine.size() - 1 - i] *= gain;
  }
  const std::vector<double> limited = filtered(fine, lowPass(0.125, 1600));
  Samples samples;
  for (std::size_t i = offset; i < limited.size(); i += 4) {
    samples.push_back(static_cast<float>(limited[i]));
  }
  return samples;
}

Samples whiteNoise(std::size_t frames, float peak, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<float> level(-peak, peak);
  Samples samples(frames);
  for (float& sample : samples) sample = level(random);
  return samples;
}

Samples noiseBursts(double highest, std::size_t frames, unsigned seed) {
  Samples raw = whiteNoise(frames, 1, seed);
  constexpr std::size_t burst = 2000;
  for (std::size_t n = 0; n < frames; ++n) {
    const std::size_t place = n % burst;
    const double envelope = place < burst / 2 ? std::sin(pi * double(place) / (burst / 2.0)) : 0;
    raw[n] *= static_cast<float>(envelope) * ((n / burst) % 3 == 0 ? 1.0F : 0.3F);
  }
  const std::vector<double> limited = filtered(raw, lowPass(highest - 0.02, 150));
  Samples samples(limited.begin(), limited.end());
  scaleTo(samples, 0.95F);
  return samples;
}

Samples mix(std::size_t frames, float peak, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> uniform(0, 1);
  std::vector<double> sum(frames);
  constexpr std::size_t note = 12000;
  for (std::size_t start = 0; start < frames; start += note) {
    for (int voice = 0; voice < 6; ++voice) {
      const double pitch = 0.0012 * std::exp2(4 * uniform(random));
      const double phase = uniform(random);
      for (int harmonic = 1; harmonic <= 24 && harmonic * pitch < 0.35; ++harmonic) {
        const std::size_t end = std::min(frames, start + 2 * note);
        // A rotating phasor is much faster than a sine for each sample.
        std::complex<double> pointer = std::polar(0.3 / harmonic, 2 * pi * harmonic * phase);
        const std::complex<double> turn =
            std::polar(std::exp(-1.0 / 6000), 2 * pi * harmonic * pitch);
        for (std::size_t n = start; n < end; ++n) {
          sum[n] += pointer.imag() * std::min(1.0, static_cast<double>(n - start) / 300);
          pointer = {pointer.real() * turn.real() - pointer.imag() * turn.imag(),
                     pointer.real() * turn.imag() + pointer.imag() * turn.real()};
        }
      }
    }
  }
  Samples beat(frames);
  for (std::size_t n = 0; n < frames; ++n) {
    const double age = static_cast<double>(n % 6000);
    beat[n] = static_cast<float>((uniform(random) - 0.5) * 2 * std::exp(-age / 700));
  }
  const std::vector<double> noise = filtered(beat, lowPass(0.33, 100));
  Samples samples(frames);
  for (std::size_t n = 0; n < frames; ++n) {
    samples[n] = static_cast<float>(sum[n] + 0.5 * noise[n]);
  }
  scaleTo(samples, peak);
  return samples;
}

Samples hotMix(std::size_t frames, float drive, unsigned seed) {
  Samples samples = mix(frames, drive, seed);
  for (float& sample : samples) sample = std::tanh(sample);
  scaleTo(samples, 1);
  return samples;
}

Samples clippedMix(std::size_t frames, float drive, unsigned seed) {
  Samples samples = mix(frames, drive, seed);
  for (float& sample : samples) sample = std::clamp(sample, -1.0F, 1.0F);
  return samples;
}

double idealPeak(const Samples& samples, std::size_t first, std::size_t last) {
  constexpr int reach = 128;
  constexpr int points = 32;
  double largest = 0;
  for (int point = 0; point < points; ++point) {
    const double fraction = static_cast<double>(point) / points;
    std::vector<double> taps;
    for (int i = -reach + 1; i <= reach; ++i) {
      const double distance = fraction - i;
      const double sinc = distance == 0 ? 1 : std::sin(pi * distance) / (pi * distance);
      const double place = pi * distance / reach;
      taps.push_back(sinc * (0.42 + 0.5 * std::cos(place) + 0.08 * std::cos(2 * place)));
    }
    for (std::size_t n = first; n < last; ++n) {
      double sum = 0;
      for (int i = -reach + 1; i <= reach; ++i) {
        const auto at = static_cast<std::ptrdiff_t>(n) + i;
        if (at < 0 || at >= static_cast<std::ptrdiff_t>(samples.size())) continue;
        sum += taps[static_cast<std::size_t>(i + reach - 1)] *
               static_cast<double>(samples[static_cast<std::size_t>(at)]);
      }
      largest = std::max(largest, std::fabs(sum));
    }
  }
  return largest;
}

}  // namespace meter_signals

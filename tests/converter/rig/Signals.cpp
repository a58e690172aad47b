#include "Signals.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;

/// Uniform noise through four one-pole low-passes in series, scaled to the peak.
std::vector<float> lowPassedNoise(std::size_t frames, double sampleRate, double highest, float peak,
                                  unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> uniform(-1, 1);
  const double keep = std::exp(-kTwoPi * 0.4 * highest / sampleRate);
  double state[4] = {};
  std::vector<float> samples(frames);
  float largest = 1e-9F;
  for (float& sample : samples) {
    double value = uniform(random);
    for (double& pole : state) {
      pole += (1 - keep) * (value - pole);
      value = pole;
    }
    sample = static_cast<float>(value);
    largest = std::max(largest, std::fabs(sample));
  }
  for (float& sample : samples) sample *= peak / largest;
  return samples;
}

}  // namespace

Signal smoothNoise(std::size_t channels, std::size_t frames, double sampleRate, double highest,
                   float peak, unsigned seed) {
  Signal signal(channels, lowPassedNoise(frames, sampleRate, highest, peak, seed));
  if (channels == 2) {
    const auto own = lowPassedNoise(frames, sampleRate, highest, peak, seed + 1000);
    for (std::size_t i = 0; i < frames; ++i) signal[1][i] = 0.6F * signal[1][i] + 0.02F * own[i];
  }
  return signal;
}

Signal music(std::size_t channels, std::size_t frames, double sampleRate, unsigned seed) {
  const double notes[] = {196, 261.6, 329.6, 440, 587.3, 880, 1318.5, 2637};
  Signal signal;
  for (std::size_t channel = 0; channel < channels; ++channel) {
    auto samples =
        lowPassedNoise(frames, sampleRate, 6000, 0.15F, seed + static_cast<unsigned>(channel));
    for (std::size_t i = 0; i < frames; ++i) {
      const double seconds = static_cast<double>(i) / sampleRate;
      double value = 0;
      for (std::size_t note = 0; note < std::size(notes); ++note) {
        const double period = 0.23 + 0.07 * static_cast<double>(note);
        const double since = std::fmod(seconds + 0.1 * static_cast<double>(seed), period);
        const double attack = std::min(1.0, since / 0.004);
        const double gain = (0.06 + 0.02 * static_cast<double>((note + channel) % 3)) * attack *
                            std::exp(-4 * since);
        value += gain * std::sin(kTwoPi * notes[note] * seconds);
      }
      samples[i] += static_cast<float>(value);
    }
    signal.push_back(std::move(samples));
  }
  return signal;
}

Signal sines(std::size_t channels, std::size_t frames, double sampleRate, int count,
             double highest) {
  Signal signal;
  for (std::size_t channel = 0; channel < channels; ++channel) {
    std::mt19937 random(7 + static_cast<unsigned>(channel));
    std::uniform_real_distribution<double> phase(0, kTwoPi);
    std::vector<double> sum(frames);
    const double gain = 0.15 * std::sqrt(2.0 / count);
    for (int sine = 0; sine < count; ++sine) {
      const double step = kTwoPi * highest * (sine + 0.5) / count / sampleRate;
      const double start = phase(random);
      for (std::size_t i = 0; i < frames; ++i) {
        sum[i] += gain * std::sin(start + step * static_cast<double>(i));
      }
    }
    signal.emplace_back(sum.begin(), sum.end());
  }
  return signal;
}

Signal silence(std::size_t channels, std::size_t frames) {
  return Signal(channels, std::vector<float>(frames));
}

Signal part(const Signal& signal, std::size_t begin, std::size_t end) {
  Signal cut;
  for (const auto& samples : signal) {
    cut.emplace_back(samples.begin() + static_cast<std::ptrdiff_t>(begin),
                     samples.begin() + static_cast<std::ptrdiff_t>(end));
  }
  return cut;
}

double delayBetween(const std::vector<float>& earlier, const std::vector<float>& later,
                    std::size_t begin, std::size_t end, int reach) {
  const auto correlation = [&](int lag) {
    double product = 0;
    double power = 1e-30;
    for (std::size_t i = begin; i < end; ++i) {
      const auto shifted = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(i) + lag);
      product += double{earlier[i]} * double{later[shifted]};
      power += double{later[shifted]} * double{later[shifted]};
    }
    return product / std::sqrt(power);
  };
  int best = -reach;
  double highest = -2;
  for (int lag = -reach; lag <= reach; ++lag) {
    const double value = correlation(lag);
    if (value > highest) {
      highest = value;
      best = lag;
    }
  }
  // The vertex of the parabola through the three highest values.
  const double before = correlation(best - 1);
  const double at = correlation(best);
  const double after = correlation(best + 1);
  return best + 0.5 * (before - after) / (before - 2 * at + after);
}

double residual(const std::vector<float>& reference, const std::vector<float>& other,
                std::size_t begin, std::size_t end) {
  double error = 0;
  double power = 0;
  for (std::size_t i = begin; i < end; ++i) {
    const double difference = double{other[i]} - double{reference[i]};
    error += difference * difference;
    power += double{reference[i]} * double{reference[i]};
  }
  return 10 * std::log10(error / power);
}

float largestStep(const std::vector<float>& samples, std::size_t begin, std::size_t end) {
  float largest = 0;
  for (std::size_t i = begin + 1; i < end; ++i) {
    largest = std::max(largest, std::fabs(samples[i] - samples[i - 1]));
  }
  return largest;
}

double rms(const std::vector<float>& samples, std::size_t begin, std::size_t end) {
  double power = 0;
  for (std::size_t i = begin; i < end; ++i) power += double{samples[i]} * double{samples[i]};
  return std::sqrt(power / static_cast<double>(end - begin));
}

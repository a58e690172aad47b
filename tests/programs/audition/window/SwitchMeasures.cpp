#include "SwitchMeasures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

double largestStep(const std::vector<float>& samples, std::size_t begin, std::size_t end) {
  double largest = 0;
  for (auto i = begin + 1; i < end; ++i) {
    largest = std::max(largest, std::abs(double{samples[i]} - double{samples[i - 1]}));
  }
  return largest;
}

}  // namespace

std::vector<double> shareOfTheNew(const Listened& listened, const std::vector<Click>& clicks) {
  std::vector<double> product(kFade);
  std::vector<double> power(kFade);
  for (const auto& click : clicks) {
    for (std::size_t channel = 0; channel < 2; ++channel) {
      for (std::size_t i = 0; i < kFade; ++i) {
        const auto at = click.frame + i;
        const double from = listened.signal(click.fromSource, channel)[at];
        const double difference = listened.signal(click.toSource, channel)[at] - from;
        product[i] += (listened.output.planes[channel][at] - from) * difference;
        power[i] += difference * difference;
      }
    }
  }
  for (std::size_t i = 0; i < kFade; ++i) product[i] /= power[i];
  return product;
}

double delayOf(const std::vector<double>& share) {
  return std::accumulate(share.begin(), share.end(), 0.0,
                         [](double sum, double part) { return sum + 1 - part; });
}

double unexplained(const Listened& listened, const std::vector<Click>& clicks,
                   const std::vector<double>& share) {
  double largest = 0;
  for (const auto& click : clicks) {
    for (std::size_t channel = 0; channel < 2; ++channel) {
      for (std::size_t i = 0; i < kFade; ++i) {
        const auto at = click.frame + i;
        const double from = listened.signal(click.fromSource, channel)[at];
        const double to = listened.signal(click.toSource, channel)[at];
        const double expected = from + share[i] * (to - from);
        largest = std::max(largest, std::abs(listened.output.planes[channel][at] - expected));
      }
    }
  }
  return largest;
}

Look lookAt(const Listened& listened, const Sound& output, std::size_t frame, bool toSource,
            const std::vector<double>& share) {
  Look look;
  const auto begin = frame - std::min<std::size_t>(frame, 1000);
  const auto end = std::min(frame + kFade + 1000, output.frames());
  for (std::size_t channel = 0; channel < 2; ++channel) {
    const auto around = std::max(largestStep(listened.signal(true, channel), begin, end),
                                 largestStep(listened.signal(false, channel), begin, end));
    const auto made = largestStep(output.planes[channel], frame - 1, frame + kFade + 1);
    look.step = std::max(look.step, made / around);
  }
  constexpr std::size_t piece = kFade / 7;
  for (std::size_t at = 0; at + piece <= kFade; at += piece) {
    double mixed = 0;
    double heard = 0;
    for (std::size_t channel = 0; channel < 2; ++channel) {
      for (std::size_t i = at; i < at + piece; ++i) {
        const double from = listened.signal(!toSource, channel)[frame + i];
        const double to = listened.signal(toSource, channel)[frame + i];
        const double played = output.planes[channel][frame + i];
        mixed += (1 - share[i]) * from * from + share[i] * to * to;
        heard += played * played;
      }
    }
    look.dip = std::min(look.dip, 10 * std::log10(heard / mixed));
  }
  return look;
}

std::pair<double, double> meanOf(const std::vector<double>& values) {
  const auto count = static_cast<double>(values.size());
  const double mean = std::accumulate(values.begin(), values.end(), 0.0) / count;
  double squares = 0;
  for (const auto value : values) squares += (value - mean) * (value - mean);
  return {mean, std::sqrt(squares / (count - 1) / count)};
}

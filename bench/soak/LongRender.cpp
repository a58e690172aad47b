#include <algorithm>
#include <cmath>
#include <random>

#include "RandomOperator.h"
#include "Rig.h"
#include "Soak.h"

namespace soak {
namespace {

constexpr double kRate = 44100;
constexpr std::size_t kLargest = 4096;
/// No codec's output for a signal within full scale exceeds this.
constexpr float kMost = 4;

}  // namespace

Endurance renderForLong(double seconds, unsigned seed) {
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = kLargest});
  RandomOperator other(rig.unit(), seed);
  const auto operating = other.operateAllTheTime(std::chrono::microseconds(300));
  std::mt19937 random(seed + 1);
  std::uniform_int_distribution<std::size_t> length(1, kLargest);
  const Signal input = music(2, std::size_t{20} * 44100, kRate, seed);
  Endurance endurance;
  while (endurance.seconds < seconds) {
    const Signal output = rig.renderInBlocks(input, [&](std::size_t) { return length(random); });
    for (const auto& samples : output) {
      endurance.samplesOutOfRange += static_cast<std::size_t>(std::ranges::count_if(
          samples, [](float sample) { return !(std::fabs(sample) <= kMost); }));
    }
    endurance.seconds += static_cast<double>(input[0].size()) / kRate;
  }
  endurance.codecFailures = rig.property(converter::kConverterProperty_CodecFailures);
  endurance.missedFrames = rig.missedFrames();
  return endurance;
}

}  // namespace soak

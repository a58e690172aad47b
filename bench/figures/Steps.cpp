#include <algorithm>

#include "ChangeCheck.h"
#include "Figure.h"
#include "Rig.h"

namespace figures {
namespace {

constexpr double kRate = 44100;
constexpr std::size_t kBlock = 500;
constexpr std::size_t kBetween = 5000;
constexpr std::size_t kFade = 441;
constexpr std::size_t kAround = 2205;

/// The largest step at any switch of the monitor, relative to the largest step in source and
/// encoded signal around it.
double monitorStep() {
  const Signal input = music(2, std::size_t{20} * 44100, kRate);
  const auto render = [&](auto wantsSource) {
    Rig rig;
    rig.setPreset(2);
    return rig.renderInBlocks(input, [&](std::size_t at) {
      rig.monitorSource(wantsSource(at));
      return kBlock;
    });
  };
  const Signal source = render([](std::size_t) { return true; });
  const Signal encoded = render([](std::size_t) { return false; });
  const Signal output = render([](std::size_t at) { return at / kBetween % 2 == 1; });
  double largest = 0;
  for (std::size_t at = 4 * kBetween; at + kBetween < output[0].size(); at += kBetween) {
    for (std::size_t channel = 0; channel < 2; ++channel) {
      const auto stepIn = [&](const Signal& signal) {
        return largestStep(signal[channel], at - kAround, at + kFade + kAround);
      };
      const float step = largestStep(output[channel], at - 1, at + kFade + 1);
      largest = std::max(largest, double{step} / std::max(stepIn(source), stepIn(encoded)));
    }
  }
  return largest;
}

std::vector<Row> measure() {
  const ChangeReport report = walkThroughEveryPair(
      {.sampleRate = kRate, .channels = 2, .maximumFrames = kBlock}, everySetting(3), 4000);
  return {atMost("step_monitor", monitorStep(), 1), atMost("step_encoder", report.largestStep, 1),
          atMost("strange_samples_at_changes", static_cast<double>(report.strangeSamples), 0)};
}

}  // namespace

Family steps() {
  return {{"step_monitor", "step_encoder", "strange_samples_at_changes"}, measure};
}

}  // namespace figures

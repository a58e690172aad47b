#include <malloc.h>

#include <algorithm>
#include <random>

#include "Rig.h"
#include "Soak.h"

namespace soak {
namespace {

constexpr double kRate = 48000;
constexpr std::size_t kLargest = 2048;
/// The unit adopts no two changes closer together than this.
constexpr std::size_t kBetweenChanges = 2048;

std::size_t bytesInUse() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

/// Restores the initial settings.
void settle(Rig& rig) {
  rig.setSetting(velk::kFormat_AAC, velk::kStrategy_ABR, 16);
  rig.monitorSource(false);
  rig.unit().reset();
  rig.render(music(2, 96000, kRate), kLargest);
}

double offsetOf(Rig& rig) {
  const Signal source = smoothNoise(2, 96000, kRate, 2400);
  rig.unit().reset();
  const Signal encoded = rig.renderAligned(source, kLargest);
  return delayBetween(source[0], encoded[0], 8192, 88000);
}

std::size_t wrongSourceSamples(Rig& rig) {
  rig.monitorSource(true);
  rig.unit().reset();
  rig.render(silence(2, kLargest));
  rig.unit().reset();
  const Signal source = music(2, 48000, kRate, 3);
  const Signal output = rig.renderAligned(source, kLargest);
  std::size_t wrong = 0;
  for (std::size_t channel = 0; channel < 2; ++channel) {
    for (std::size_t i = 0; i < source[channel].size(); ++i) {
      wrong += output[channel][i] == source[channel][i] ? 0 : 1;
    }
  }
  return wrong;
}

}  // namespace

Wear changeAndSwitch(std::size_t changes, std::size_t switches, unsigned seed) {
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = kLargest});
  std::mt19937 random(seed);
  const auto below = [&random](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  const Signal input = music(2, 480000, kRate);
  Wear wear;
  std::size_t place = 0;
  std::size_t sinceChange = 0;
  bool monitorsSource = false;
  const auto step = [&] {
    if (sinceChange >= kBetweenChanges) {
      // Always a different format or rate from the one before.
      const auto format = static_cast<float>(wear.changes % 3);
      rig.setSetting(format, static_cast<float>(below(3)), static_cast<float>(5 + below(12)));
      ++wear.changes;
      sinceChange = 0;
    }
    monitorsSource = !monitorsSource;
    rig.monitorSource(monitorsSource);
    ++wear.switches;
    const std::size_t frames = std::min(1 + below(512), input[0].size() - place);
    rig.render(part(input, place, place + frames), kLargest);
    sinceChange += frames;
    place = (place + frames) % input[0].size();
  };
  while (wear.changes < std::min<std::size_t>(changes, 300)) step();
  settle(rig);
  wear.offsetBefore = offsetOf(rig);
  settle(rig);
  wear.memoryBefore = bytesInUse();
  wear.changes = wear.switches = 0;
  while (wear.changes < changes || wear.switches < switches) step();
  settle(rig);
  wear.memoryAfter = bytesInUse();
  wear.offsetAfter = offsetOf(rig);
  wear.wrongSourceSamples = wrongSourceSamples(rig);
  return wear;
}

}  // namespace soak

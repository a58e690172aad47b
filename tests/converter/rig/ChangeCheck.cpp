#include "ChangeCheck.h"

#include <algorithm>
#include <cmath>

#include "PairSignal.h"
#include "Rig.h"
#include "converter/codec/Encoder.h"
#include "converter/transcoder/Latency.h"

using converter::Position;
using converter::Setting;
using converter::UnitFormat;
using velk::EncoderSetting;

namespace {

/// How far around a cross-fade steps are compared, seconds. A cross-fade adds up to 0.4 % of the
/// two signals' difference to each of their steps, which shows only if both are steepest inside it.
constexpr double kAroundSeconds = 0.05;
/// More than any encoder needs for priming.
constexpr Position kRunUp = 4 * Position{converter::kBlockFrames};

Position fadeFrames(const UnitFormat& unit) {
  return std::lround(0.010 * unit.sampleRate);
}

Position aroundFrames(const UnitFormat& unit) {
  return std::lround(kAroundSeconds * unit.sampleRate);
}

/// Part of one encoder's signal.
struct Stretch {
  Position begin;
  Signal signal;

  float at(std::size_t channel, Position position) const {
    return signal[channel][static_cast<std::size_t>(position - begin)];
  }
  Position end() const { return begin + static_cast<Position>(signal[0].size()); }
  float largestStepIn(std::size_t channel, Position from, Position to) const {
    const Position first = std::max(from, begin);
    const Position last = std::min(to, end());
    return ::largestStep(signal[channel], static_cast<std::size_t>(first - begin),
                         static_cast<std::size_t>(last - begin));
  }
};

Stretch encoderFor(const UnitFormat& unit, const Signal& input, const TakenChange& change,
                   Position end) {
  const Setting setting = nearestSetting(change.values, unit, converter::encoderAbilities());
  const Position begin = std::max<Position>(
      change.position / converter::kBlockFrames * converter::kBlockFrames - kRunUp, 0);
  const Position enough = end + converter::kEncodedBehindSource + converter::kBlockFrames;
  const Signal source =
      part(input, static_cast<std::size_t>(begin),
           static_cast<std::size_t>(std::min(enough, static_cast<Position>(input[0].size()))));
  return {change.position, encodeFrom(setting, unit, source, change.position - begin)};
}

}  // namespace

ChangeReport checkChanges(const UnitFormat& unit, const Signal& input, const Signal& encoded,
                          const std::vector<TakenChange>& changes) {
  const Position fade = fadeFrames(unit);
  const Position around = aroundFrames(unit);
  ChangeReport report;
  Stretch before{0, {}};
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const Position place = changes[i].position;
    const bool isLast = i + 1 == changes.size();
    const Position next = isLast ? place + 4 * fade : changes[i + 1].position;
    const Stretch now = encoderFor(unit, input, changes[i], next + fade + around);
    const Position faded = i == 0 ? place : place + fade;
    for (std::size_t channel = 0; channel < encoded.size(); ++channel) {
      for (Position at = faded; at < std::min(next, now.end()); ++at) {
        const float sample = encoded[channel][static_cast<std::size_t>(at)];
        if (sample != now.at(channel, at)) ++report.strangeSamples;
      }
      if (i == 0) continue;
      const float most =
          std::max(before.largestStepIn(channel, place - around, place + fade + around),
                   now.largestStepIn(channel, place - around, place + fade + around));
      const float step = ::largestStep(encoded[channel], static_cast<std::size_t>(place - 1),
                                       static_cast<std::size_t>(place + fade + 1));
      const double ratio = double{step} / double{most};
      if (ratio > report.largestStep) {
        report.largestStep = ratio;
        report.largestStepAt = i;
      }
    }
    if (i > 0) ++report.changes;
    before = now;
  }
  return report;
}

std::vector<EncoderSetting> everySetting(int rates) {
  constexpr float kRates[] = {9, 5, 14};
  constexpr float kQualities[] = {60, 5, 127};
  std::vector<EncoderSetting> settings;
  for (const float format : {0.0F, 1.0F, 2.0F}) {
    for (const float strategy : {0.0F, 1.0F, 2.0F}) {
      for (int rate = 0; rate < rates; ++rate) {
        settings.push_back({format, strategy, strategy == 2 ? kQualities[rate] : kRates[rate]});
      }
    }
  }
  return settings;
}

/// An Eulerian circuit: follows unused pairs until stuck, then backtracks, appending the dead ends,
/// and inserts the remaining detours on the way back.
std::vector<std::size_t> everyOrderedPair(std::size_t count) {
  std::vector<std::size_t> nextOf(count, 0);
  std::vector<std::size_t> stack{0};
  std::vector<std::size_t> walk;
  while (!stack.empty()) {
    const std::size_t here = stack.back();
    if (nextOf[here] == here) ++nextOf[here];
    if (nextOf[here] < count) {
      stack.push_back(nextOf[here]++);
    } else {
      walk.push_back(here);
      stack.pop_back();
    }
  }
  std::ranges::reverse(walk);
  return walk;
}

ChangeReport walkThroughEveryPair(const UnitFormat& unit,
                                  const std::vector<EncoderSetting>& settings,
                                  std::size_t spacing) {
  constexpr std::size_t kBlock = 500;
  spacing = spacing / kBlock * kBlock;
  const auto walk = everyOrderedPair(settings.size());
  const Signal input = music(unit.channels, walk.size() * spacing + 8192, unit.sampleRate);
  Rig rig(unit);
  std::vector<TakenChange> changes;
  Signal longer = input;
  for (auto& samples : longer) samples.resize(samples.size() + rig.unit().latency());
  const auto apply = [&](const EncoderSetting& values) {
    rig.setSetting(values.format, values.strategy, values.rateOrQuality);
  };
  const Signal output = rig.renderInBlocks(longer, [&](std::size_t at) {
    if (at % spacing == 0 && at / spacing < walk.size()) {
      const EncoderSetting& values = settings[walk[at / spacing]];
      apply(values);
      changes.push_back({static_cast<Position>(at), values});
    }
    return kBlock;
  });
  return checkChanges(unit, input, part(output, rig.unit().latency(), output[0].size()), changes);
}

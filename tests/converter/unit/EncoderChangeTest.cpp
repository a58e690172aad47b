#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "ChangeCheck.h"
#include "Rig.h"

namespace {

constexpr std::size_t kFade = 441;

struct Setting {
  float format;
  float strategy;
  float rateOrQuality;
};

std::vector<Setting> settings() {
  if (!converter::hasHighEfficiencyEncoder()) return {{0, 0, 7}, {0, 0, 16}, {0, 2, 60}};
  return {{0, 1, 14}, {0, 0, 9}, {0, 2, 60}, {1, 0, 7}, {1, 1, 16}, {2, 0, 5}, {2, 0, 8}};
}

void apply(Rig& rig, const Setting& setting) {
  rig.setSetting(setting.format, setting.strategy, setting.rateOrQuality);
}

/// The whole input encoded with one setting, with the latency.
Signal renderWith(const Setting& setting, const Signal& input, std::size_t block) {
  Rig rig;
  apply(rig, setting);
  return rig.render(input, block);
}

class EveryChange : public testing::Test {
 protected:
  static constexpr std::size_t kBlock = 300;
  static constexpr std::size_t kChange = 33000;

  EveryChange() {
    for (const Setting& setting : settings()) {
      constant_.push_back(renderWith(setting, input_, kBlock));
    }
  }

  Signal renderChange(const Setting& from, const Setting& to) const {
    Rig rig;
    apply(rig, from);
    return rig.renderInBlocks(input_, [&](std::size_t at) {
      if (at == kChange) apply(rig, to);
      return kBlock;
    });
  }

  /// Calls `check(from, to, output, place)` for every ordered pair of settings; `place` is where
  /// the change is heard in the output.
  template <typename Check>
  void forEveryPair(Check check) const {
    const auto all = settings();
    for (std::size_t from = 0; from < all.size(); ++from) {
      for (std::size_t to = 0; to < all.size(); ++to) {
        if (from == to) continue;
        SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
        check(constant_[from], constant_[to], renderChange(all[from], all[to]),
              kChange + Rig().unit().latency());
      }
    }
  }

  const Signal input_ = music(2, 62000, 44100);
  std::vector<Signal> constant_;
};

TEST_F(EveryChange, LeavesNoStepAndNoGapAndMovesNothing) {
  forEveryPair([&](const Signal& from, const Signal& to, const Signal& output, std::size_t place) {
    const std::size_t latency = place - kChange;
    for (std::size_t channel = 0; channel < 2; ++channel) {
      const auto& samples = output[channel];
      ASSERT_TRUE(std::equal(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(place),
                             from[channel].begin()))
          << "something changed before the change";
      EXPECT_NE(samples[place + 20], from[channel][place + 20]) << "nothing changed at the change";

      const float most = std::max(largestStep(from[channel], place - 1000, place + kFade + 1000),
                                  largestStep(to[channel], place - 1000, place + kFade + 1000));
      EXPECT_LE(largestStep(samples, place - 1, place + kFade + 1), mostStep() * most);

      for (std::size_t at = place; at < place + 2000; at += 200) {
        EXPECT_GT(rms(samples, at, at + 200),
                  0.5 * rms(input_[channel], at - latency, at - latency + 200));
      }
      // From the cross-fade on, the new encoder is about as close to the source as one that ran all
      // along; libavcodec's takes longer to settle.
      std::vector<float> delayed(samples.size());
      std::copy(input_[channel].begin(),
                input_[channel].end() - static_cast<std::ptrdiff_t>(latency),
                delayed.begin() + static_cast<std::ptrdiff_t>(latency));
      const std::size_t end = samples.size();
      EXPECT_LT(residual(delayed, samples, place + kFade, end),
                residual(delayed, to[channel], place + kFade, end) +
                    (converter::hasHighEfficiencyEncoder() ? 1.5 : 4.5));
    }
  });
}

TEST(EncoderChange, TakesTheNewestOfManyBetweenTwoBlocks) {
  const Signal input = music(2, 50000, 44100);
  const auto all = settings();
  const auto render = [&](bool detours) {
    Rig rig;
    apply(rig, all[0]);
    return rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
      if (at == 20000) {
        if (detours) {
          for (const Setting& setting : all) apply(rig, setting);
        }
        apply(rig, all[1]);
      }
      return 500;
    });
  };
  EXPECT_EQ(render(true), render(false));
}

TEST(EncoderChange, DropsThoseThatWaitForTheLastCrossFadeButTheNewest) {
  const Signal input = music(2, 60000, 44100);
  const auto all = settings();
  const auto render = [&](bool detours) {
    Rig rig;
    apply(rig, all[0]);
    return rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
      if (at == 20000) apply(rig, all[1]);
      if (at > 20000 && at < 22000 && detours) apply(rig, all[2]);
      if (at == 22000) apply(rig, all[0]);
      return 100;
    });
  };
  EXPECT_EQ(render(true), render(false));
}

TEST(EncoderChange, ToTheSameEffectiveSettingChangesNothing) {
  const Signal input = music(2, 50000, 44100);
  Rig still;
  Rig rig;
  const Signal output = rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
    // Codes are truncated to integers.
    if (at == 20000) rig.setSetting(0.9F, 1.5F, 14.7F);
    return 1000;
  });
  EXPECT_EQ(output, still.render(input, 1000));
}

TEST(EncoderChange, TakesPlaceWhereTheNextBlockStarts) {
  const Signal input = music(2, 50000, 44100);
  const auto render = [&](std::size_t block) {
    Rig rig;
    return rig.renderInBlocks(input, [&](std::size_t at) {
      if (at == 20000) rig.setPreset(2);
      return block;
    });
  };
  const Signal reference = render(1000);
  EXPECT_EQ(render(100), reference);
  EXPECT_EQ(render(20), reference);
}

/// A cross-fade adds up to 0.4 % of its two signals' difference to each of their steps, so where
/// both are steepest inside the fade, its steps can slightly exceed theirs.
constexpr double kStepOfTheFadeItself = 1.001;

/// The changes that the unit adopts when every block of 256 samples requests the next setting: the
/// newest request, once per access unit's length.
std::vector<TakenChange> adoptedChanges(const std::vector<Setting>& settings, std::size_t count) {
  std::vector<TakenChange> taken;
  converter::Position next = 0;
  for (std::size_t number = 0; number < count + 16; ++number) {
    const auto position = static_cast<converter::Position>(256 * number);
    const Setting& asked = settings[std::min(number, count - 1) % settings.size()];
    const velk::EncoderSetting values{asked.format, asked.strategy, asked.rateOrQuality};
    if (position < next || (!taken.empty() && taken.back().values == values)) continue;
    if (position > 0) next = position + 2048;
    taken.push_back({position, values});
  }
  return taken;
}

TEST(EncoderChange, SurvivesAThousandInARow) {
  constexpr std::size_t kChanges = 1000;
  const Signal input = music(2, kChanges * 256 + 40000, 44100);
  const auto all = settings();
  Rig rig;
  std::size_t changes = 0;
  Signal longer = input;
  for (auto& samples : longer) samples.resize(samples.size() + rig.unit().latency());
  Signal output = rig.renderInBlocks(longer, [&](std::size_t) -> std::size_t {
    if (changes < kChanges) apply(rig, all[changes++ % all.size()]);
    return 256;
  });
  EXPECT_EQ(rig.missedFrames(), 0U);
  output = part(output, rig.unit().latency(), output[0].size());
  const ChangeReport report =
      checkChanges(rig.format(), input, output, adoptedChanges(all, kChanges));
  EXPECT_GT(report.changes, 100U);
  EXPECT_EQ(report.strangeSamples, 0U);
  EXPECT_LE(report.largestStep, mostStep() * kStepOfTheFadeItself)
      << "at change " << report.largestStepAt;
}

TEST(EncoderChange, BetweenAnyTwoFormatsAndStrategiesGivesTheOneAndThenTheOther) {
  if (!converter::hasHighEfficiencyEncoder()) GTEST_SKIP() << "this build encodes LC only";
  const ChangeReport report = walkThroughEveryPair(
      {.sampleRate = 48000, .channels = 2, .maximumFrames = 500}, everySetting(1), 3500);
  EXPECT_EQ(report.changes, 72U);
  EXPECT_EQ(report.strangeSamples, 0U);
  EXPECT_LE(report.largestStep, kStepOfTheFadeItself) << "at change " << report.largestStepAt;
}

TEST(EncoderChange, OfOneChannelGivesTheOneAndThenTheOtherToo) {
  if (!converter::hasHighEfficiencyEncoder()) GTEST_SKIP() << "this build encodes LC only";
  const ChangeReport report =
      walkThroughEveryPair({.sampleRate = 32000, .channels = 1, .maximumFrames = 500},
                           {{0, 0, 9}, {1, 0, 5}, {0, 2, 90}, {1, 1, 9}}, 4000);
  EXPECT_EQ(report.changes, 12U);
  EXPECT_EQ(report.strangeSamples, 0U);
  EXPECT_LE(report.largestStep, kStepOfTheFadeItself) << "at change " << report.largestStepAt;
}

TEST(EncoderChange, BeforeTheFirstSampleNeedsNoCrossFade) {
  const Signal input = music(2, 40000, 44100);
  Rig direct;
  direct.setPreset(1);
  Rig rig;
  rig.setPreset(0);
  rig.setPreset(1);
  EXPECT_EQ(rig.render(input), direct.render(input));
}

}  // namespace

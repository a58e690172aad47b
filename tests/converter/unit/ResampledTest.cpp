#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "Rig.h"
#include "converter/transcoder/Latency.h"
#include "converter/transcoder/RateChange.h"

namespace {

constexpr converter::UnitFormat kFormat{.sampleRate = 192000, .channels = 2, .maximumFrames = 1024};
constexpr std::size_t kFrames = 192000;

TEST(Resampled, LeavesTheSourceUntouched) {
  Rig rig(kFormat);
  rig.monitorSource(true);
  rig.render(silence(2, 2048));
  // Content far above the codec's band.
  Signal source = music(2, kFrames, 192000);
  for (std::size_t i = 0; i < kFrames; ++i) source[0][i] += i % 2 == 0 ? 0.1F : -0.1F;
  EXPECT_EQ(rig.renderAligned(source), source);
}

TEST(Resampled, GivesTheSameForEveryBlockSize) {
  const Signal input = music(2, 100000, 192000);
  Rig even({.sampleRate = 192000, .channels = 2, .maximumFrames = 8192});
  Rig uneven({.sampleRate = 192000, .channels = 2, .maximumFrames = 8192});
  std::mt19937 random(3);
  std::uniform_int_distribution<std::size_t> length(1, 8192);
  EXPECT_EQ(uneven.renderInBlocks(input, [&](std::size_t) { return length(random); }),
            even.render(input, 8192));
  EXPECT_EQ(uneven.missedFrames(), 0U);
  EXPECT_EQ(even.missedFrames(), 0U);
}

TEST(Resampled, StartsAgainAfterAReset) {
  const Signal input = music(2, 80000, 192000);
  Rig fresh(kFormat);
  Rig rig(kFormat);
  rig.render(music(2, 50001, 192000, 4));
  rig.unit().reset();
  EXPECT_EQ(rig.render(input), fresh.render(input));
}

TEST(Resampled, ChangesItsEncoderAtTheStatedPlaceAndMovesNothing) {
  if (!converter::hasHighEfficiencyEncoder()) GTEST_SKIP() << "this build encodes LC only";
  constexpr std::size_t kChange = 90000;
  const Signal input = smoothNoise(2, kFrames, 192000, 8000);
  Rig steady(kFormat);
  Rig rig(kFormat);
  const Signal before = steady.render(input, 500);
  const Signal output = rig.renderInBlocks(input, [&](std::size_t at) -> std::size_t {
    if (at == kChange) rig.setPreset(2);
    return 500;
  });
  const std::size_t place = kChange + rig.unit().latency();
  // A resampler looks ahead, so a very faint trace of the change precedes it.
  for (std::size_t i = 0; i < place; ++i) {
    ASSERT_NEAR(output[0][i], before[0][i], i + 300 < place ? 1e-6 : 1e-3) << i;
  }
  EXPECT_GT(residual(before[0], output[0], place + 2000, place + 10000), -60);
  Signal delayed = silence(2, kFrames);
  for (std::size_t i = rig.unit().latency(); i < kFrames; ++i) {
    delayed[0][i] = input[0][i - rig.unit().latency()];
  }
  EXPECT_LT(std::abs(delayBetween(delayed[0], output[0], place + 2000, kFrames - 100)), 0.55 * 2);
  const float most = std::max(largestStep(before[0], place - 4000, place + 6000),
                              largestStep(delayed[0], place - 4000, place + 6000));
  EXPECT_LE(largestStep(output[0], place - 1, place + 1921), most);
}

TEST(Resampled, IsSilentAndCountedWhereTheWorkerIsLateAndInPlaceAfterwards) {
  Rig rig({.sampleRate = 192000, .channels = 2, .maximumFrames = 4096});
  const Signal input = smoothNoise(2, std::size_t{6} * 192000, 192000, 8000);
  rig.renderTooFast(input);
  EXPECT_GT(rig.missedFrames(), 0U);
  rig.setOffline(true);
  const Signal after = rig.render(input, 4096);
  const std::size_t latency = rig.unit().latency();
  Signal delayed = silence(2, input[0].size());
  for (std::size_t i = latency; i < delayed[0].size(); ++i) {
    delayed[0][i] = input[0][i - latency];
  }
  const std::size_t begin = latency + std::size_t{2} * 192000;
  EXPECT_LT(std::abs(delayBetween(delayed[0], after[0], begin, begin + 200000)), 1.1);
  EXPECT_LT(residual(delayed[0], after[0], begin, begin + 200000), -15);
}

TEST(Resampled, LosesNothingAroundASampleThatIsNoNumberOrOutOfAllProportion) {
  constexpr double kRate = 192000;
  constexpr std::size_t kBad = 60000;
  constexpr std::size_t kMillisecond = 192;
  Signal sine = silence(2, 120000);
  for (std::size_t i = 0; i < sine[0].size(); ++i) {
    const double phase = 2 * std::numbers::pi * 1000 * static_cast<double>(i) / kRate;
    sine[0][i] = sine[1][i] = static_cast<float>(0.5 * std::sin(phase));
  }
  const float infinity = std::numeric_limits<float>::infinity();
  for (const float bad : {std::nanf(""), infinity, -infinity, 1e38F, -3e38F}) {
    Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = 1024});
    Signal source = sine;
    source[0][kBad] = source[1][kBad] = bad;
    const Signal encoded = rig.renderAligned(source);
    const double whole = rms(sine[0], 0, sine[0].size());
    for (int at = -20; at < 20; at += 2) {
      const auto begin =
          kBad + static_cast<std::size_t>(at + 20) * kMillisecond - 20 * kMillisecond;
      EXPECT_GT(rms(encoded[0], begin, begin + 2 * kMillisecond), 0.8 * whole)
          << bad << " at " << at << " ms";
    }
  }
}

TEST(Resampled, UsesTheSettingsOfHalfTheRate) {
  Rig rig({.sampleRate = 176400, .channels = 2, .maximumFrames = 512});
  rig.setSetting(0, 0, 0);
  EXPECT_EQ(rig.property(converter::kConverterProperty_EffectiveSetting).bitRate, 24807U);
}

using converter::RateChange;

class RateChanging : public testing::TestWithParam<RateChange::Direction> {
 protected:
  static constexpr UInt32 kBlock = 2048;

  static bool halves() { return GetParam() == RateChange::Direction::halve; }

  /// A sine through the resampler, with its delay; `frequency` is relative to the input rate.
  static std::vector<float> resample(RateChange& change, double frequency, int blocks) {
    std::vector<float> samples(kBlock);
    std::vector<float> output;
    for (int block = 0; block < blocks; ++block) {
      for (UInt32 i = 0; i < kBlock; ++i) {
        const double at = block * double{kBlock} + i;
        samples[i] = static_cast<float>(0.5 * std::cos(2 * std::numbers::pi * frequency * at));
      }
      const float* planes[] = {samples.data()};
      const std::size_t made = change.process(planes, kBlock);
      output.insert(output.end(), change.plane(0), change.plane(0) + made);
      const double higher = halves() ? 1 : 2;
      const double taken = higher * kBlock * (block + 1);
      const double given = static_cast<double>(output.size()) * (halves() ? 2 : 1);
      EXPECT_GE(given, taken - converter::kResamplerDelay);
      EXPECT_LE(given, taken);
    }
    return output;
  }
};

TEST_P(RateChanging, KeepsWithinItsDelayAndMovesNothing) {
  RateChange change(GetParam(), 1, kBlock);
  const double frequency = halves() ? 0.05 : 0.1;
  const auto output = resample(change, frequency, 40);
  const double step = 2 * std::numbers::pi * frequency * (halves() ? 2 : 0.5);
  for (std::size_t i = 4000; i < output.size(); ++i) {
    ASSERT_NEAR(output[i], 0.5 * std::cos(step * static_cast<double>(i)), 2e-6) << i;
  }
}

TEST_P(RateChanging, StartsAgainAfterClear) {
  RateChange change(GetParam(), 1, kBlock);
  const auto first = resample(change, 0.03, 20);
  change.clear();
  EXPECT_EQ(resample(change, 0.03, 20), first);
}

INSTANTIATE_TEST_SUITE_P(BothWays, RateChanging,
                         testing::Values(RateChange::Direction::halve,
                                         RateChange::Direction::doubleUp),
                         [](const auto& test) {
                           return test.param == RateChange::Direction::halve ? "Halved" : "Doubled";
                         });

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "Rig.h"

namespace {

/// Length of the cross-fade at 44.1 kHz.
constexpr std::size_t kFade = 441;

/// 50 ms at 44.1 kHz.
constexpr std::size_t kAround = 2205;

TEST(Monitor, SendsTheEncodedSignalAtFirst) {
  Rig rig;
  EXPECT_EQ(rig.property(velk::kConverterProperty_MonitorSource), 0U);
  const Signal source = music(2, 44100, 44100);
  const Signal output = rig.renderAligned(source);
  EXPECT_NE(output, source);
  EXPECT_LT(residual(source[0], output[0], 4096, 40000), -10);
}

TEST(Monitor, SendsTheSourceBitForBit) {
  Rig rig;
  rig.monitorSource(true);
  rig.render(silence(2, 1024));
  Signal source = music(2, 44100, 44100);
  source[0][100] = 3.5F;
  source[1][200] = -1e-41F;
  EXPECT_EQ(rig.renderAligned(source), source);
}

TEST(Monitor, TakesAnyValueButZeroForTheSource) {
  Rig rig;
  const UInt32 value = 0x80000000U;
  rig.setProperty(velk::kConverterProperty_MonitorSource, value);
  EXPECT_EQ(rig.property(velk::kConverterProperty_MonitorSource), value);
  rig.render(silence(2, 1024));
  const Signal source = music(2, 22050, 44100);
  EXPECT_EQ(rig.renderAligned(source), source);
}

struct Switched {
  Signal source;
  Signal encoded;
  Signal output;
};

/// The same music monitored three ways; `chooses` tells at each block whether to monitor the
/// source.
template <typename Chooses>
Switched renderThreeWays(std::size_t block, Chooses chooses) {
  const Signal input = music(2, 70000, 44100);
  Rig encodedRig;
  Rig sourceRig;
  Rig rig;
  sourceRig.monitorSource(true);
  for (Rig* each : {&encodedRig, &sourceRig, &rig}) each->setPreset(2);
  Switched result{sourceRig.render(input, block), encodedRig.render(input, block), {}};
  result.output = rig.renderInBlocks(input, [&](std::size_t at) {
    rig.monitorSource(chooses(at));
    return block;
  });
  return result;
}

TEST(Monitor, SwitchesAtTheNextBlockAndHasSwitchedAfterTenMilliseconds) {
  const std::size_t there = 30000;
  const std::size_t back = 50000;
  const auto [source, encoded, output] =
      renderThreeWays(500, [](std::size_t at) { return at >= there && at < back; });
  for (std::size_t channel = 0; channel < 2; ++channel) {
    for (std::size_t i = 1000; i < output[channel].size(); ++i) {
      const bool isSource = i >= there + kFade && i < back;
      const bool isEncoded = i < there || i >= back + kFade;
      if (isSource) {
        ASSERT_EQ(output[channel][i], source[channel][i]) << i;
      } else if (isEncoded) {
        ASSERT_EQ(output[channel][i], encoded[channel][i]) << i;
      }
    }
    EXPECT_NE(output[channel][there + 10], encoded[channel][there + 10]);
    EXPECT_NE(output[channel][back + 10], source[channel][back + 10]);
    EXPECT_NE(output[channel][there + kFade - 10], source[channel][there + kFade - 10]);
    EXPECT_NE(output[channel][back + kFade - 10], encoded[channel][back + kFade - 10]);
  }
}

TEST(Monitor, FadesTheSameBothWays) {
  const std::size_t there = 30000;
  const std::size_t back = 50000;
  const Switched signals =
      renderThreeWays(500, [](std::size_t at) { return at >= there && at < back; });
  const auto share = [&signals](std::size_t i) {
    const float encoded = signals.encoded[0][i];
    return (signals.output[0][i] - encoded) / (signals.source[0][i] - encoded);
  };
  for (std::size_t i = 20; i < kFade - 20; i += 37) {
    EXPECT_NEAR(share(there + i), 1 - share(back + i), 0.02) << i;
  }
}

TEST(Monitor, MakesNoStepWhenItSwitches) {
  for (const std::size_t block : {64U, 1000U}) {
    const std::size_t period = 4000 / block * block;
    const auto [source, encoded, output] =
        renderThreeWays(block, [=](std::size_t at) { return at / period % 2 == 1; });
    for (std::size_t at = 5 * period; at + 2000 < output[0].size(); at += period) {
      for (std::size_t channel = 0; channel < 2; ++channel) {
        const float most = std::max(largestStep(source[channel], at - 1000, at + 1441),
                                    largestStep(encoded[channel], at - 1000, at + 1441));
        EXPECT_LE(largestStep(output[channel], at - 1, at + kFade + 1), mostStep() * most) << at;
      }
    }
  }
}

TEST(Monitor, MakesNoStepWhenItTurnsBackInMidFade) {
  const std::size_t block = 100;
  const auto [source, encoded, output] =
      renderThreeWays(block, [=](std::size_t at) { return at / 200 % 2 == 1; });
  for (std::size_t channel = 0; channel < 2; ++channel) {
    const std::size_t end = output[channel].size();
    for (std::size_t at = 20000; at + 2000 + kAround < end; at += 2000) {
      EXPECT_LE(
          largestStep(output[channel], at, at + 2000),
          mostStep() * std::max(largestStep(source[channel], at - kAround, at + 2000 + kAround),
                                largestStep(encoded[channel], at - kAround, at + 2000 + kAround)));
    }
  }
}

}  // namespace

#include <gtest/gtest.h>

#include "Rig.h"

namespace {

converter::BitRate bitRate(Rig& rig) {
  return rig.property(converter::kConverterProperty_BitRate);
}

/// How far from its target a rate may be after three seconds; libavcodec's encoder settles later.
double fromTarget(double kbps) {
  return (converter::hasHighEfficiencyEncoder() ? 0.04 : 0.1) * kbps;
}

TEST(BitRate, IsZeroBeforeTheFirstAccessUnit) {
  Rig rig;
  EXPECT_EQ(bitRate(rig).recentKbps, 0);
  EXPECT_EQ(bitRate(rig).averageKbps, 0);
}

TEST(BitRate, IsNearTheTargetOfAnAverageRate) {
  for (const float format : {0.0F, 1.0F}) {
    Rig rig;
    rig.setSetting(format, 0, 7);
    rig.render(music(2, std::size_t{6} * 44100, 44100));
    EXPECT_NEAR(bitRate(rig).recentKbps, 64, 2);
    EXPECT_NEAR(bitRate(rig).averageKbps, 64, 2);
  }
}

TEST(BitRate, FollowsTheLastSecondsAndAveragesAll) {
  Rig rig;
  rig.setSetting(0, 2, 127);
  rig.render(music(2, std::size_t{6} * 44100, 44100));
  const auto loud = bitRate(rig);
  rig.render(silence(2, std::size_t{6} * 44100));
  const auto quiet = bitRate(rig);
  EXPECT_LT(quiet.recentKbps, 0.3 * loud.recentKbps);
  EXPECT_GT(quiet.averageKbps, 2 * quiet.recentKbps);
  EXPECT_LT(quiet.averageKbps, loud.averageKbps);
}

TEST(BitRate, RestartsWithAChangeOfSetting) {
  Rig rig;
  rig.setSetting(0, 0, 14);
  rig.render(music(2, std::size_t{3} * 44100, 44100));
  EXPECT_NEAR(bitRate(rig).averageKbps, 256, fromTarget(256));
  rig.setSetting(0, 0, 7);
  rig.render(music(2, std::size_t{3} * 44100, 44100, 2));
  EXPECT_NEAR(bitRate(rig).recentKbps, 64, fromTarget(64));
  EXPECT_NEAR(bitRate(rig).averageKbps, 64, fromTarget(64));
}

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "converter/stream/GapMute.h"

namespace {

using converter::Soundness;
using converter::Stretch;

constexpr std::size_t kFade = 480;

class GapMute : public testing::Test {
 protected:
  /// What becomes of ones.
  std::vector<float> process(const std::vector<Stretch>& stretches, bool active = true) {
    std::size_t frames = 0;
    for (const auto& stretch : stretches) frames += stretch.frames;
    std::vector<float> left(frames, 1.0F);
    std::vector<float> right(frames, -1.0F);
    float* const planes[] = {left.data(), right.data()};
    mute_.process(planes, 2, stretches, active);
    for (std::size_t i = 0; i < frames; ++i) EXPECT_EQ(right[i], -left[i]);
    return left;
  }
  static bool isAll(const std::vector<float>& samples, std::size_t from, std::size_t to,
                    float value) {
    return std::all_of(samples.begin() + static_cast<std::ptrdiff_t>(from),
                       samples.begin() + static_cast<std::ptrdiff_t>(to),
                       [value](float sample) { return sample == value; });
  }

  converter::GapMute mute_{48000};
};

TEST_F(GapMute, LeavesWhatIsSoundAsItIs) {
  EXPECT_TRUE(isAll(process({{1000, Soundness::sound}}), 0, 1000, 1));
}

TEST_F(GapMute, SilencesEachGapAndComesBackWithinTenMilliseconds) {
  for (const auto gap : {Soundness::missing, Soundness::unsound}) {
    const auto heard = process({{600, Soundness::sound}, {100, gap}, {1000, Soundness::sound}});
    EXPECT_TRUE(isAll(heard, 0, 600, 1));
    EXPECT_TRUE(isAll(heard, 600, 700, 0));
    EXPECT_TRUE(std::is_sorted(heard.begin() + 700, heard.end()));
    EXPECT_GT(heard[700], 0);
    EXPECT_LT(heard[700], 0.001);
    EXPECT_LT(heard[700 + kFade - 1], 1);
    EXPECT_TRUE(isAll(heard, 700 + kFade, 1700, 1));
  }
}

TEST_F(GapMute, GoesOnComingBackInTheNextBlock) {
  process({{10, Soundness::missing}, {200, Soundness::sound}});
  const auto heard = process({{400, Soundness::sound}});
  EXPECT_GT(heard[0], 0.3);
  EXPECT_LT(heard[0], 0.5);
  EXPECT_TRUE(isAll(heard, kFade - 200, 400, 1));
}

TEST_F(GapMute, ChangesNothingOutsideOfATest) {
  EXPECT_TRUE(
      isAll(process({{10, Soundness::missing}, {200, Soundness::sound}}, false), 0, 210, 1));
  EXPECT_TRUE(isAll(process({{200, Soundness::sound}}), 0, 200, 1));
}

}  // namespace

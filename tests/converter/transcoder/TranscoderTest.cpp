#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "Signals.h"
#include "converter/transcoder/Latency.h"
#include "converter/transcoder/Transcoder.h"

namespace {

using converter::AudioBlock;
using converter::kBlockFrames;
using converter::Position;
using converter::Setting;
using converter::SourceBlock;
using converter::Transcoder;

constexpr converter::UnitFormat kUnit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};

Setting settingOf(float rateIndex) {
  return nearestSetting({0, 0, rateIndex}, kUnit, converter::encoderAbilities());
}

/// Blocks by number, cut from endless music.
class Blocks : public testing::Test {
 protected:
  static constexpr std::size_t kCount = 60;

  SourceBlock at(std::size_t number, float rateIndex = 10) const {
    SourceBlock block;
    block.setting = settingOf(rateIndex);
    block.audio.position = static_cast<Position>(number) * kBlockFrames;
    for (std::size_t channel = 0; channel < 2; ++channel) {
      std::copy_n(music_[channel].begin() + block.audio.position, kBlockFrames,
                  block.audio.planes[channel].begin());
    }
    return block;
  }

  static AudioBlock process(Transcoder& transcoder, const SourceBlock& source) {
    AudioBlock encoded;
    for (auto& plane : encoded.planes) plane.fill(99);
    transcoder.process(source, encoded);
    return encoded;
  }

  const Signal music_ = music(2, kCount* kBlockFrames, 44100);
};

using TranscoderTest = Blocks;

TEST_F(TranscoderTest, ReturnsTheBlockFromTheLongestDelayBefore) {
  Transcoder transcoder(kUnit);
  for (std::size_t number = 0; number < 10; ++number) {
    EXPECT_EQ(process(transcoder, at(number)).position,
              static_cast<Position>(number) * kBlockFrames - converter::kEncodedBehindSource);
  }
}

TEST_F(TranscoderTest, StartsWhereTheSourceStarts) {
  for (const std::size_t first : {std::size_t{0}, std::size_t{7}}) {
    Transcoder transcoder(kUnit);
    const auto begin = static_cast<Position>(first) * kBlockFrames;
    for (std::size_t number = first; number < first + 6; ++number) {
      const AudioBlock block = process(transcoder, at(number));
      EXPECT_EQ(block.validFrom, std::clamp(begin, block.position, block.end()));
      for (const auto& plane : block.planes) {
        EXPECT_EQ(std::count(plane.begin(), plane.end(), 99.0F), block.validFrom - block.position)
            << "exactly what is there is written";
      }
    }
  }
}

TEST_F(TranscoderTest, RestartsAfterAGapWithTheSettingInEffectThere) {
  Transcoder fresh(kUnit);
  Transcoder interrupted(kUnit);
  for (std::size_t number = 0; number < 8; ++number) process(interrupted, at(number, 16));
  for (std::size_t number = 40; number < 50; ++number) {
    const SourceBlock block = at(number, 7);
    EXPECT_EQ(process(interrupted, block).planes, process(fresh, block).planes) << number;
  }
}

TEST_F(TranscoderTest, GivesTheSameOutputAgainAfterClear) {
  Transcoder transcoder(kUnit);
  std::vector<AudioBlock> first;
  first.reserve(12);
  for (std::size_t number = 0; number < 12; ++number) {
    first.push_back(process(transcoder, at(number)));
  }
  transcoder.clear();
  EXPECT_EQ(transcoder.report().bitRate.averageKbps, 0);
  for (std::size_t number = 0; number < 12; ++number) {
    EXPECT_EQ(process(transcoder, at(number)).planes, first[number].planes);
  }
}

TEST_F(TranscoderTest, ChangesItsSettingAtTheStatedPosition) {
  const Position change = 20 * Position{kBlockFrames} + 777;
  Transcoder steady(kUnit);
  Transcoder changing(kUnit);
  Position differs = -1;
  for (std::size_t number = 0; number < 30; ++number) {
    SourceBlock block = at(number, number > 20 ? 5 : 16);
    const AudioBlock expected = process(steady, at(number, 16));
    if (number == 20) block.change = converter::SettingChange{change, settingOf(5)};
    const AudioBlock encoded = process(changing, block);
    for (std::size_t i = 0; i < kBlockFrames && differs < 0; ++i) {
      if (encoded.planes[0][i] != expected.planes[0][i]) {
        differs = encoded.position + static_cast<Position>(i);
      }
    }
  }
  EXPECT_GE(differs, change);
  EXPECT_LE(differs, change + 2);
}

}  // namespace

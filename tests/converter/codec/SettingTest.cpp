#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "contract/ConverterInterface.h"
#include "converter/codec/Setting.h"

namespace {

using converter::Format;
using converter::nearestSetting;
using converter::Strategy;
using converter::UnitFormat;
using velk::EncoderSetting;

constexpr converter::EncoderAbilities kAll{.highEfficiency = true};
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

UnitFormat at(double sampleRate, UInt32 channels) {
  return {.sampleRate = sampleRate, .channels = channels, .maximumFrames = 512};
}

std::uint32_t rateOf(const EncoderSetting& values, const UnitFormat& unit) {
  return nearestSetting(values, unit, kAll).bitRate;
}

TEST(Setting, KeepsWhatTheEncoderCanDo) {
  const auto setting = nearestSetting({0, 1, 14}, at(44100, 2), kAll);
  EXPECT_EQ(setting.format, Format::lc);
  EXPECT_EQ(setting.strategy, Strategy::constrainedVbr);
  EXPECT_EQ(setting.bitRate, 256000U);
  EXPECT_EQ(setting.vbrMode, 0);
}

TEST(Setting, TruncatesCodes) {
  EXPECT_EQ(nearestSetting({1.99F, 0.99F, 7.99F}, at(48000, 2), kAll),
            nearestSetting({1, 0, 7}, at(48000, 2), kAll));
}

TEST(Setting, ClampsValuesOutOfRangeToTheNearestCode) {
  const auto unit = at(48000, 2);
  const auto lowest = nearestSetting({0, 0, 0}, unit, kAll);
  const auto highest = nearestSetting({2, 2, 127}, unit, kAll);
  for (const float low : {-0.5F, -1.0F, -1e30F, -kInfinity, kNaN, -kNaN}) {
    EXPECT_EQ(nearestSetting({low, low, low}, unit, kAll), lowest) << low;
  }
  for (const float high : {128.0F, 1e30F, kInfinity, std::numeric_limits<float>::max()}) {
    EXPECT_EQ(nearestSetting({high, high, high}, unit, kAll), highest) << high;
  }
  EXPECT_EQ(rateOf({0, 0, 17}, unit), 320000U);
  EXPECT_EQ(rateOf({0, 1, 1e9F}, unit), 320000U);
}

TEST(Setting, MapsTheQualitiesEvenlyToTheFiveModes) {
  int used[6] = {};
  int last = 1;
  for (int quality = 0; quality <= 127; ++quality) {
    const auto setting = nearestSetting({0, 2, static_cast<float>(quality)}, at(44100, 2), kAll);
    ASSERT_GE(setting.vbrMode, last);
    ASSERT_LE(setting.vbrMode, 5);
    EXPECT_EQ(setting.bitRate, 0U);
    last = setting.vbrMode;
    ++used[last];
  }
  for (int mode = 1; mode <= 5; ++mode) EXPECT_NEAR(used[mode], 128 / 5.0, 1);
}

TEST(Setting, UsesHeForHeV2WithOneChannel) {
  EXPECT_EQ(nearestSetting({2, 0, 7}, at(44100, 1), kAll),
            nearestSetting({1, 0, 7}, at(44100, 1), kAll));
  EXPECT_EQ(converter::highestFormat(kAll, 1), Format::he);
  EXPECT_EQ(converter::highestFormat(kAll, 2), Format::heV2);
}

TEST(Setting, WithoutHighEfficiencyIsAlwaysLc) {
  for (const float format : {0.0F, 1.0F, 2.0F}) {
    EXPECT_EQ(nearestSetting({format, 0, 7}, at(44100, 2), {}).format, Format::lc);
  }
  EXPECT_EQ(converter::highestFormat({}, 2), Format::lc);
}

struct Limits {
  Format format;
  UInt32 channels;
  double sampleRate;
  std::uint32_t lowest;
  std::uint32_t highest;
};

/// In bit/s, as read back from the encoder library after asking for too little and too much.
constexpr Limits kAverageLimits[] = {
    {Format::lc, 1, 32000, 16000, 192000},   {Format::lc, 1, 44100, 16000, 264600},
    {Format::lc, 1, 48000, 16000, 288000},   {Format::lc, 1, 88200, 21360, 320000},
    {Format::lc, 1, 96000, 23250, 320000},   {Format::lc, 2, 32000, 16000, 320000},
    {Format::lc, 2, 44100, 16000, 320000},   {Format::lc, 2, 48000, 16000, 320000},
    {Format::lc, 2, 88200, 24807, 320000},   {Format::lc, 2, 96000, 27000, 320000},
    {Format::he, 1, 32000, 16000, 96000},    {Format::he, 1, 44100, 16000, 132300},
    {Format::he, 1, 48000, 16000, 144000},   {Format::he, 1, 88200, 24000, 264600},
    {Format::he, 1, 96000, 32000, 288000},   {Format::he, 2, 32000, 16000, 192000},
    {Format::he, 2, 44100, 16000, 264600},   {Format::he, 2, 48000, 16000, 288000},
    {Format::he, 2, 88200, 32000, 320000},   {Format::he, 2, 96000, 36000, 320000},
    {Format::heV2, 2, 32000, 16000, 96000},  {Format::heV2, 2, 44100, 16000, 132300},
    {Format::heV2, 2, 48000, 16000, 144000}, {Format::heV2, 2, 88200, 24000, 264600},
    {Format::heV2, 2, 96000, 32000, 288000},
};

TEST(Setting, KeepsAverageRatesWithinWhatTheFormatCanDo) {
  for (const Limits& limits : kAverageLimits) {
    const auto unit = at(limits.sampleRate, limits.channels);
    const auto format = static_cast<float>(limits.format);
    for (std::size_t index = 0; index < velk::bitRates.size(); ++index) {
      const std::uint32_t asked = 1000 * velk::bitRates[index];
      EXPECT_NEAR(rateOf({format, 0, static_cast<float>(index)}, unit),
                  std::clamp(asked, limits.lowest, limits.highest), 1)
          << "format " << format << ", " << limits.channels << " channels, " << limits.sampleRate
          << " Hz, " << asked;
    }
  }
}

TEST(Setting, TakesTheBaseRateOfConstrainedVbrForWhatItAverages) {
  for (const UInt32 channels : {1U, 2U}) {
    for (const float format : {0.0F, 1.0F, 2.0F}) {
      for (float index = 0; index < 17; ++index) {
        EXPECT_EQ(rateOf({format, 1, index}, at(44100, channels)),
                  rateOf({format, 0, index}, at(44100, channels)));
      }
    }
  }
}

}  // namespace

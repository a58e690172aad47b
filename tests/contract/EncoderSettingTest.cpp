#include <gtest/gtest.h>

#include <limits>

#include "contract/EncoderSetting.h"

namespace {

using velk::EncoderSetting;
using velk::Format;
using velk::Strategy;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(EncoderSetting, NamesFormatsAndStrategies) {
  EXPECT_STREQ(nameOf(Format::lc), "AAC");
  EXPECT_STREQ(nameOf(Format::he), "AAC HE");
  EXPECT_STREQ(nameOf(Format::heV2), "AAC HEv2");
  EXPECT_STREQ(nameOf(Strategy::abr), "ABR");
  EXPECT_STREQ(nameOf(Strategy::constrainedVbr), "VBRC");
  EXPECT_STREQ(nameOf(Strategy::vbr), "VBR");
}

TEST(EncoderSetting, TruncatesValuesTowardZero) {
  EXPECT_EQ(velk::formatOf(0), Format::lc);
  EXPECT_EQ(velk::formatOf(1.7F), Format::he);
  EXPECT_EQ(velk::formatOf(2.99F), Format::heV2);
  EXPECT_EQ(velk::formatOf(-0.9F), Format::lc);
  EXPECT_EQ(velk::strategyOf(0), Strategy::abr);
  EXPECT_EQ(velk::strategyOf(1), Strategy::constrainedVbr);
  EXPECT_EQ(velk::strategyOf(2.5F), Strategy::vbr);
}

TEST(EncoderSetting, FindsNothingBehindOtherValues) {
  for (const float value : {-1.0F, 3.0F, 1e30F, -kInfinity, kInfinity, kNaN}) {
    EXPECT_FALSE(velk::formatOf(value)) << value;
    EXPECT_FALSE(velk::strategyOf(value)) << value;
  }
}

TEST(EncoderSetting, TakesAWholeNumberThatAnUnsignedOneCanHold) {
  EXPECT_EQ(velk::wholeNumberOf(127.9F), 127U);
  EXPECT_EQ(velk::wholeNumberOf(-0.5F), 0U);
  EXPECT_EQ(velk::wholeNumberOf(4294967040.0F), 4294967040U);
  for (const float value : {-1.0F, 4294967296.0F, kInfinity, -kInfinity, kNaN}) {
    EXPECT_FALSE(velk::wholeNumberOf(value)) << value;
  }
}

TEST(EncoderSetting, FindsARateByItsIndex) {
  EXPECT_EQ(velk::bitRateOf(0), 16U);
  EXPECT_EQ(velk::bitRateOf(0.9F), 16U);
  EXPECT_EQ(velk::bitRateOf(7), 64U);
  EXPECT_EQ(velk::bitRateOf(14), 256U);
  EXPECT_EQ(velk::bitRateOf(16), 320U);
  for (const float index : {-0.1F, 16.5F, 17.0F, kInfinity, kNaN}) {
    EXPECT_FALSE(velk::bitRateOf(index)) << index;
  }
}

TEST(EncoderSetting, FindsTheIndexOfEveryRate) {
  for (std::size_t index = 0; index < velk::bitRates.size(); ++index) {
    EXPECT_EQ(velk::rateIndexOf(velk::bitRates[index]), static_cast<float>(index));
  }
  for (const std::uint32_t rate : {0U, 15U, 100U, 321U}) EXPECT_FALSE(velk::rateIndexOf(rate));
}

TEST(EncoderSetting, HasEitherARateOrAQuality) {
  const EncoderSetting rate = {0, 1, 14};
  EXPECT_FALSE(rate.hasQuality());
  EXPECT_EQ(rate.rateKbps(), 256U);
  EXPECT_FALSE(rate.quality());
  const EncoderSetting quality = {0, 2, 14};
  EXPECT_TRUE(quality.hasQuality());
  EXPECT_FALSE(quality.rateKbps());
  EXPECT_EQ(quality.quality(), 14U);
  EXPECT_FALSE((EncoderSetting{0, 0, 17}.rateKbps())) << "an index that names no rate";
  EXPECT_FALSE((EncoderSetting{0, 2, kNaN}.quality()));
}

TEST(EncoderSetting, IsEqualWhenAllThreeValuesAre) {
  const EncoderSetting setting = {1, 0, 7};
  EXPECT_EQ(setting, (EncoderSetting{1, 0, 7}));
  EXPECT_NE(setting, (EncoderSetting{0, 0, 7}));
  EXPECT_NE(setting, (EncoderSetting{1, 1, 7}));
  EXPECT_NE(setting, (EncoderSetting{1, 0, 7.5F})) << "the values, not what they stand for";
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "ui/Bundle.h"
#include "ui/Localization.h"
#include "view/encoder_menu/EncoderTexts.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kLargest = std::numeric_limits<float>::max();

class EncoderTexts : public testing::Test {
 protected:
  const ui::Bundle bundle{VELK_RESOURCES, {"en"}};
  const std::unique_ptr<ui::Localization> english = ui::makeLocalization("en_US");

  std::string format(float value) const { return velk::formatName(value, bundle); }
  std::string strategy(float value) const { return velk::strategyName(value, bundle); }
  std::string rate(float value) const { return velk::bitRateText(value, *english); }
  std::string quality(float value) const { return velk::qualityText(value, *english); }
};

TEST_F(EncoderTexts, NameTheFormats) {
  EXPECT_EQ(format(0), "AAC");
  EXPECT_EQ(format(1), "AAC HE");
  EXPECT_EQ(format(2), "AAC HEv2");
}

TEST_F(EncoderTexts, NameTheStrategies) {
  EXPECT_EQ(strategy(0), "ABR");
  EXPECT_EQ(strategy(1), "VBRC");
  EXPECT_EQ(strategy(2), "VBR");
}

TEST_F(EncoderTexts, TakeACodeByTruncationTowardZero) {
  EXPECT_EQ(format(0.99F), "AAC");
  EXPECT_EQ(format(1.7F), "AAC HE");
  EXPECT_EQ(format(2.7F), "AAC HEv2");
  EXPECT_EQ(format(-0.9F), "AAC");
  EXPECT_EQ(strategy(1.999F), "VBRC");
  EXPECT_EQ(strategy(-0.0F), "ABR");
}

TEST_F(EncoderTexts, ShowADashForACodeThatStandsForNothing) {
  for (const float value : {3.0F, 3.5F, -1.0F, -7.0F, 1e20F, -1e20F, kLargest, -kLargest, kInfinity,
                            -kInfinity, kNaN}) {
    EXPECT_EQ(format(value), "-") << value;
    EXPECT_EQ(strategy(value), "-") << value;
  }
}

TEST_F(EncoderTexts, GiveEveryRateOfTheList) {
  const std::vector<std::string> rates = {"16",  "20",  "24",  "32",  "40",  "48",
                                          "56",  "64",  "80",  "96",  "128", "160",
                                          "192", "224", "256", "288", "320"};
  for (std::size_t index = 0; index < rates.size(); ++index) {
    EXPECT_EQ(rate(static_cast<float>(index)), rates[index]);
  }
}

TEST_F(EncoderTexts, TakeARateIndexByTruncationUpToTheLast) {
  EXPECT_EQ(rate(0.9F), "16");
  EXPECT_EQ(rate(15.9F), "288");
  EXPECT_EQ(rate(16.0F), "320");
  EXPECT_EQ(rate(16.5F), "-");
  EXPECT_EQ(rate(17.0F), "-");
}

TEST_F(EncoderTexts, ShowADashForARateThatIsNone) {
  for (const float value :
       {-0.1F, -1.0F, -kLargest, kLargest, kInfinity, -kInfinity, kNaN, -kNaN}) {
    EXPECT_EQ(rate(value), "-") << value;
  }
  EXPECT_EQ(rate(-0.0F), "16");
}

TEST_F(EncoderTexts, GiveAQualityAsItIs) {
  EXPECT_EQ(quality(0), "0");
  EXPECT_EQ(quality(100), "100");
  EXPECT_EQ(quality(99.99F), "99");
  EXPECT_EQ(quality(5000), "5000");
  EXPECT_EQ(quality(4294967040.0F), "4294967040");
  EXPECT_EQ(quality(-0.9F), "0");
}

TEST_F(EncoderTexts, ShowADashForAQualityThatNoUnsignedNumberHolds) {
  for (const float value :
       {-1.0F, -5000.0F, 4294967296.0F, kLargest, kInfinity, -kInfinity, kNaN}) {
    EXPECT_EQ(quality(value), "-") << value;
  }
}

TEST_F(EncoderTexts, TitleASettingByItsRateOrItsQuality) {
  EXPECT_EQ(velk::settingTitle({0, 0, 10}, false, bundle, *english), "AAC ABR 128 Kbps");
  EXPECT_EQ(velk::settingTitle({0, 2, 100}, true, bundle, *english), "AAC VBR Quality: 100");
  EXPECT_EQ(velk::settingTitle({kNaN, -1, 99}, false, bundle, *english), "- - - Kbps");
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "view/behaviour/Stage.h"

namespace {

using namespace behaviour;
using fakes::FakeConverter;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kMenu = "view.encoderPopup";
constexpr const char* kSheet = "settingsController.settingsSheet";
constexpr const char* kType = "settingsController.typePopup";
constexpr const char* kStrategy = "settingsController.strategyPopup";
constexpr const char* kRate = "settingsController.bitratePopup";
constexpr const char* kQuality = "settingsController.qualitySlider";
constexpr const char* kPages = "settingsController.rateQualityTabView";
constexpr const char* kRateLabel = "settingsController.rateLabel";
constexpr const char* kOK = "settingsController.OKButton";
constexpr const char* kCancel = "settingsController.cancelButton";

void openSheet(Stage& stage) {
  stage.pickItem(kMenu, static_cast<int>(stage.itemTitles(kMenu).size()) - 1);
  stage.advance(kSettled);
}

std::unique_ptr<Stage> openSheetWith(const FakeConverter::Setting& setting,
                                     float maximumFormat = 2.0F) {
  auto stage = setStage([&](FakeConverter& unit) {
    unit.setSetting(setting);
    unit.maximumFormat = maximumFormat;
  });
  openSheet(*stage);
  stage->unit().log().clear();
  return stage;
}

TEST(CustomEncoderSheet, OpensWithTheSettingOfTheUnit) {
  const auto stage = openSheetWith({0, 1, 12});
  EXPECT_TRUE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->selectedItem(kType), 0);
  EXPECT_EQ(stage->selectedItem(kStrategy), 1);
  EXPECT_EQ(stage->selectedItem(kRate), 12);
  EXPECT_EQ(stage->selectedTab(kPages), 0);
  EXPECT_EQ(stage->text(kRateLabel), "Base Bit Rate:");
  EXPECT_TRUE(stage->isEnabled(kStrategy));
  EXPECT_THAT(stage->unit().log().starting("unit.set"), IsEmpty());
}

TEST(CustomEncoderSheet, OpensOnTheQualityForVBR) {
  const auto stage = openSheetWith({0, 2, 90});
  EXPECT_EQ(stage->selectedItem(kStrategy), 2);
  EXPECT_EQ(stage->selectedTab(kPages), 1);
  EXPECT_EQ(stage->sliderValue(kQuality), 90.0);
  EXPECT_EQ(stage->text(kRateLabel), "Bit Rate:");
}

TEST(CustomEncoderSheet, OffersAllRatesForEverySetting) {
  EXPECT_EQ(openSheetWith({2, 0, 0})->itemTitles(kRate).size(), 17U);
}

TEST(CustomEncoderSheet, OffersHEv2OnlyWhereTheUnitDoes) {
  EXPECT_EQ(openSheetWith({0, 1, 14}, 2.0F)->itemTitles(kType).size(), 3U);
  EXPECT_EQ(openSheetWith({0, 1, 14}, 1.0F)->itemTitles(kType).size(), 2U);
}

TEST(CustomEncoderSheet, DropsHEv2OnceHoweverOftenItOpens) {
  const auto stage = openSheetWith({0, 1, 14}, 1.0F);
  for (int time = 0; time < 3; ++time) {
    stage->click(kCancel);
    stage->advance(kSettled);
    openSheet(*stage);
    EXPECT_EQ(stage->itemTitles(kType).size(), 2U);
  }
}

TEST(CustomEncoderSheet, ShowsAFormatThatTheUnitDoesNotOfferAsHE) {
  EXPECT_EQ(openSheetWith({2, 0, 3}, 1.0F)->selectedItem(kType), 1);
}

TEST(CustomEncoderSheet, ShowsWhatItCanOfValuesThatStandForNothing) {
  const auto stage = openSheetWith({0, 1, 12});
  for (const float value :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity(), -1.0F, 99.0F, std::numeric_limits<float>::max()}) {
    for (const FakeConverter::Setting& setting :
         {FakeConverter::Setting{value, 0, 3}, {0, value, 3}, {0, 0, value}, {0, 2, value}}) {
      stage->unit().hostSetsSetting(setting);
      stage->advance(kSettled);
      EXPECT_TRUE(stage->isSheetOpen(kSheet));
      EXPECT_EQ(stage->selectedTab(kPages), setting.strategy == 2.0F ? 1 : 0);
    }
  }
  stage->unit().log().clear();
  stage->click(kCancel);
  EXPECT_EQ(stage->unit().parameters, (std::array<float, 3>{0, 1, 12}));
  stage->unit().hostSetsSetting({0, 0, 3});
  stage->advance(kSettled);
  EXPECT_EQ(stage->itemTitles(kMenu).at(kNewestCustomItem), "AAC ABR 32 Kbps");
}

TEST(CustomEncoderSheet, EditsTheUnitLive) {
  const auto stage = openSheetWith({0, 0, 3});
  stage->pickItem(kRate, 9);
  stage->pickItem(kStrategy, 1);
  stage->pickItem(kType, 1);
  EXPECT_THAT(
      stage->unit().log().starting("unit.set"),
      ElementsAre("unit.setParameter 2 = 9", "unit.setParameter 1 = 1", "unit.setParameter 0 = 1"));
}

TEST(CustomEncoderSheet, TakesTheWholePartOfASliderPosition) {
  const auto stage = openSheetWith({0, 2, 90});
  stage->dragSlider(kQuality, 63.0);
  EXPECT_EQ(stage->unit().parameters[2], 63.0F);
}

TEST(CustomEncoderSheet, TurnsToTheQualityWhenItsOwnStrategyBecomesVBR) {
  const auto stage = openSheetWith({0, 0, 3});
  stage->pickItem(kStrategy, 2);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedTab(kPages), 1);
  stage->pickItem(kStrategy, 1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedTab(kPages), 0);
  EXPECT_EQ(stage->text(kRateLabel), "Base Bit Rate:");
  stage->pickItem(kStrategy, 0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->text(kRateLabel), "Bit Rate:");
}

TEST(CustomEncoderSheet, FollowsTheHostWhileItIsOpen) {
  const auto stage = openSheetWith({0, 0, 3});
  const auto titles = stage->itemTitles(kMenu);
  stage->unit().hostSetsSetting({0, 1, 8});
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kStrategy), 1);
  EXPECT_EQ(stage->selectedItem(kRate), 8);
  EXPECT_EQ(stage->itemTitles(kMenu), titles);
}

TEST(CustomEncoderSheet, ShowsABRDisabledForAnHEType) {
  const auto stage = openSheetWith({0, 1, 12});
  stage->pickItem(kType, 1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kStrategy), 0);
  EXPECT_FALSE(stage->isEnabled(kStrategy));
  // Only the display: the unit keeps its strategy.
  EXPECT_EQ(stage->unit().parameters[1], 1.0F);
  stage->pickItem(kType, 0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kStrategy), 1);
  EXPECT_TRUE(stage->isEnabled(kStrategy));
}

TEST(CustomEncoderSheet, OKWritesWhatTheControlsShow) {
  const auto stage = openSheetWith({0, 1, 12});
  stage->pickItem(kType, 1);
  stage->advance(kSettled);
  stage->unit().log().clear();
  stage->click(kOK);
  EXPECT_THAT(stage->unit().log().starting("unit.set"),
              ElementsAre("unit.setParameter 0 = 1", "unit.setParameter 1 = 0",
                          "unit.setParameter 2 = 12"));
  stage->advance(kSettled);
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->itemTitles(kMenu).at(kNewestCustomItem), "AAC HE ABR 192 Kbps");
}

TEST(CustomEncoderSheet, OKWritesTheQualityForVBR) {
  const auto stage = openSheetWith({0, 2, 90});
  stage->dragSlider(kQuality, 64);
  stage->unit().log().clear();
  stage->click(kOK);
  EXPECT_THAT(stage->unit().log().starting("unit.set"),
              ElementsAre("unit.setParameter 0 = 0", "unit.setParameter 1 = 2",
                          "unit.setParameter 2 = 64"));
  EXPECT_THAT(stage->logLines(), IsEmpty());
}

TEST(CustomEncoderSheet, CancelRestoresFormatThenStrategyThenRate) {
  const auto stage = openSheetWith({1, 0, 5});
  const auto titles = stage->itemTitles(kMenu);
  stage->pickItem(kType, 0);
  stage->advance(kSettled);
  stage->pickItem(kStrategy, 2);
  stage->advance(kSettled);
  stage->dragSlider(kQuality, 77);
  stage->unit().log().clear();
  stage->click(kCancel);
  EXPECT_THAT(
      stage->unit().log().starting("unit.set"),
      ElementsAre("unit.setParameter 0 = 1", "unit.setParameter 1 = 0", "unit.setParameter 2 = 5"));
  stage->advance(kSettled);
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->itemTitles(kMenu), titles);
  EXPECT_EQ(stage->selectedItem(kMenu), kNewestCustomItem);
}

TEST(CustomEncoderSheet, CancelRestoresTheQualityForVBR) {
  const auto stage = openSheetWith({0, 2, 90});
  stage->pickItem(kStrategy, 0);
  stage->advance(kSettled);
  stage->click(kCancel);
  EXPECT_EQ(stage->unit().parameters, (std::array<float, 3>{0, 2, 90}));
  EXPECT_THAT(stage->logLines(), IsEmpty());
}

TEST(CustomEncoderSheet, LeavesNoEntriesForWhatWasOnlyTried) {
  const auto stage = openSheetWith({0, 1, 14});
  const auto count = stage->itemTitles(kMenu).size();
  for (int rate = 0; rate < 10; ++rate) {
    stage->pickItem(kRate, rate);
    stage->advance(kSettled);
  }
  EXPECT_EQ(stage->itemTitles(kMenu).size(), count);
  stage->click(kOK);
  stage->advance(kSettled);
  EXPECT_EQ(stage->itemTitles(kMenu).size(), count + 1);
  EXPECT_EQ(stage->itemTitles(kMenu).at(kNewestCustomItem), "AAC VBRC 96 Kbps");
  // The menu is live again.
  stage->unit().hostSetsPreset(0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kMenu), kOndaraPlusItem);
}

TEST(CustomEncoderSheet, IsCancelledByATeardownAndWritesNothing) {
  const auto stage = openSheetWith({0, 0, 3});
  stage->pickItem(kRate, 9);
  stage->unit().log().clear();
  stage->removeFromSuperview();
  stage->advance(kSettled);
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  EXPECT_THAT(stage->unit().log().starting("unit.set"), IsEmpty());
}

}  // namespace

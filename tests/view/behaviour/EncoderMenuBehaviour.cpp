#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "view/behaviour/Stage.h"

namespace {

using namespace behaviour;
using fakes::FakeConverter;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kMenu = "view.encoderPopup";

std::unique_ptr<Stage> stageWith(const FakeConverter::Setting& setting) {
  return setStage([&](FakeConverter& unit) { unit.setSetting(setting); });
}

std::string shown(Stage& stage) {
  const int index = stage.selectedItem(kMenu);
  return index < 0 ? "nothing" : stage.itemTitles(kMenu).at(static_cast<std::size_t>(index));
}

TEST(EncoderMenu, NamesThePresetThatTheUnitUses) {
  EXPECT_EQ(stageWith({0, 1, 14})->selectedItem(kMenu), kOndaraPlusItem);
  EXPECT_EQ(stageWith({0, 1, 10})->selectedItem(kMenu), k128KItem);
  EXPECT_EQ(stageWith({1, 0, 7})->selectedItem(kMenu), kStreamingItem);
  EXPECT_EQ(stageWith({1, 1, 16})->selectedItem(kMenu), kHighQualityItem);
}

TEST(EncoderMenu, AddsNoEntryForAPreset) {
  const auto stage = setStage();
  const auto titles = stage->itemTitles(kMenu);
  for (const FakeConverter::Setting& preset :
       {FakeConverter::Setting{0, 1, 10}, {1, 0, 7}, {1, 1, 16}, {0, 1, 14}}) {
    stage->unit().setSetting(preset);
    stage->unit().announce(velk::kConverterParam_Format);
    stage->advance(kSettled);
  }
  EXPECT_EQ(stage->itemTitles(kMenu), titles);
}

TEST(EncoderMenu, NamesAnyOtherSettingInAnEntryOfItsOwn) {
  const auto stage = stageWith({0, 0, 10});
  EXPECT_EQ(stage->selectedItem(kMenu), kNewestCustomItem);
  EXPECT_EQ(shown(*stage), "AAC ABR 128 Kbps");
}

TEST(EncoderMenu, NamesAVBRSettingByItsQuality) {
  EXPECT_EQ(shown(*stageWith({0, 2, 100})), "AAC VBR Quality: 100");
  EXPECT_EQ(shown(*stageWith({0, 2, 5000})), "AAC VBR Quality: 5000");
}

TEST(EncoderMenu, NamesTheHighQualityRateOfAnotherFormatAsACustomEntry) {
  EXPECT_EQ(shown(*stageWith({2, 1, 16})), "AAC HEv2 VBRC 320 Kbps");
}

TEST(EncoderMenu, ShowsADashForWhatItCannotName) {
  EXPECT_EQ(shown(*stageWith({3, 7, 17})), "- - - Kbps");
}

TEST(EncoderMenu, ShowsADashForValuesThatAreNoNumbersToShow) {
  for (const float value :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity(), -1.0F, std::numeric_limits<float>::max(),
        std::numeric_limits<float>::lowest()}) {
    EXPECT_EQ(shown(*stageWith({0, 2, value})), "AAC VBR Quality: -") << value;
    EXPECT_EQ(shown(*stageWith({0, 0, value})), "AAC ABR - Kbps") << value;
    EXPECT_EQ(shown(*stageWith({value, 0, 3})), "- ABR 32 Kbps") << value;
    EXPECT_EQ(shown(*stageWith({0, value, 3})), "AAC - 32 Kbps") << value;
    EXPECT_EQ(shown(*stageWith({value, value, value})), "- - - Kbps") << value;
  }
}

TEST(EncoderMenu, APresetIsAppliedByTheUnitAndShownWhenTheUnitSaysSo) {
  const auto stage = stageWith({0, 0, 3});
  stage->unit().log().clear();
  stage->pickItem(kMenu, kStreamingItem);
  EXPECT_THAT(stage->unit().log().starting("unit.set"),
              ElementsAre("unit.setProperty 36 = preset 2"));
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kMenu), kStreamingItem);
  EXPECT_EQ(stage->unit().parameters, (std::array<float, 3>{1, 0, 7}));
}

TEST(EncoderMenu, EachPresetItemAppliesItsOwnPreset) {
  const auto stage = stageWith({0, 0, 3});
  stage->unit().log().clear();
  for (const int item : {kOndaraPlusItem, k128KItem, kStreamingItem, kHighQualityItem}) {
    stage->pickItem(kMenu, item);
    stage->advance(kSettled);
    EXPECT_EQ(stage->selectedItem(kMenu), item);
  }
  EXPECT_THAT(stage->unit().log().starting("unit.set"),
              ElementsAre("unit.setProperty 36 = preset 0", "unit.setProperty 36 = preset 1",
                          "unit.setProperty 36 = preset 2", "unit.setProperty 36 = preset 3"));
}

TEST(EncoderMenu, ShowsAgainWhatWasSelectedWhenAPresetCannotBeApplied) {
  // A custom entry, and after it a preset.
  for (const auto& setting : {FakeConverter::Setting{0, 0, 3}, FakeConverter::Setting{1, 0, 7}}) {
    const auto stage = stageWith(setting);
    const int before = stage->selectedItem(kMenu);
    auto& unit = stage->unit();
    unit.failOnce(UnitCall::SetProperty, kAudioUnitProperty_PresentPreset, -10851);
    stage->pickItem(kMenu, kHighQualityItem);
    EXPECT_EQ(stage->selectedItem(kMenu), before);
    unit.failOnce(UnitCall::GetProperty, kAudioUnitProperty_FactoryPresets, -10879);
    stage->pickItem(kMenu, k128KItem);
    EXPECT_EQ(stage->selectedItem(kMenu), before);
    unit.presets[0].reset();
    stage->pickItem(kMenu, kOndaraPlusItem);
    EXPECT_EQ(stage->selectedItem(kMenu), before);
    unit.presets.clear();
    stage->pickItem(kMenu, k128KItem);
    EXPECT_EQ(stage->selectedItem(kMenu), before);
  }
}

TEST(EncoderMenu, LogsAPresetThatCannotBeSet) {
  const auto stage = setStage();
  stage->unit().failOnce(UnitCall::SetProperty, kAudioUnitProperty_PresentPreset, -10851);
  stage->pickItem(kMenu, kHighQualityItem);
  EXPECT_THAT(stage->logLines(), ElementsAre("unable to set preset 3: -10851"));
}

TEST(EncoderMenu, LogsPresetsThatCannotBeRead) {
  const auto stage = setStage();
  stage->unit().failOnce(UnitCall::GetProperty, kAudioUnitProperty_FactoryPresets, -10879);
  stage->pickItem(kMenu, k128KItem);
  EXPECT_THAT(stage->logLines(), ElementsAre("unable to get presets -10879"));
}

TEST(EncoderMenu, FollowsTheHost) {
  const auto stage = setStage();
  stage->unit().hostSetsSetting({0, 0, 4});
  stage->advance(kSettled);
  EXPECT_EQ(shown(*stage), "AAC ABR 40 Kbps");
  stage->unit().hostSetsPreset(1);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kMenu), k128KItem);
}

TEST(EncoderMenu, ASettingThatWasSeenBeforeIsSelectedAndNotAddedAgain) {
  const auto stage = stageWith({0, 0, 3});
  const auto titles = stage->itemTitles(kMenu);
  stage->unit().hostSetsPreset(0);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kMenu), kOndaraPlusItem);
  stage->unit().setSetting({0, 0, 3});
  stage->unit().announce(velk::kConverterParam_Strategy);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kMenu), kNewestCustomItem);
  EXPECT_EQ(stage->itemTitles(kMenu), titles);
}

TEST(EncoderMenu, ACustomEntryAppliesFormatThenStrategyThenRate) {
  const auto stage = stageWith({0, 0, 3});
  stage->unit().hostSetsPreset(3);
  stage->advance(kSettled);
  stage->unit().log().clear();
  stage->pickItem(kMenu, kNewestCustomItem);
  EXPECT_THAT(
      stage->unit().log().starting("unit.set"),
      ElementsAre("unit.setParameter 0 = 0", "unit.setParameter 1 = 0", "unit.setParameter 2 = 3"));
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem(kMenu), kNewestCustomItem);
  EXPECT_EQ(shown(*stage), "AAC ABR 32 Kbps");
}

TEST(EncoderMenu, ACustomEntryWritesAQualityToo) {
  const auto stage = stageWith({0, 2, 100});
  stage->unit().hostSetsPreset(0);
  stage->advance(kSettled);
  stage->pickItem(kMenu, kNewestCustomItem);
  EXPECT_EQ(stage->unit().parameters, (std::array<float, 3>{0, 2, 100}));
  EXPECT_THAT(stage->logLines(), IsEmpty());
}

TEST(EncoderMenu, KeepsSixteenItemsAndDropsTheOldestCustomEntry) {
  const auto stage = setStage();
  const auto fixedItems = stage->itemTitles(kMenu);
  const std::string last = fixedItems.back();
  const int room = 16 - static_cast<int>(fixedItems.size());
  for (int quality = 1; quality <= room + 3; ++quality) {
    stage->unit().setSetting({0, 2, static_cast<float>(quality)});
    stage->unit().announce(velk::kConverterParam_RateQuality);
    stage->advance(kSettled);
  }
  const auto titles = stage->itemTitles(kMenu);
  ASSERT_EQ(titles.size(), 16U);
  EXPECT_EQ(titles[5], "AAC VBR Quality: " + std::to_string(room + 3));
  EXPECT_EQ(titles[14], "AAC VBR Quality: 4");
  EXPECT_EQ(titles[15], last);
}

}  // namespace

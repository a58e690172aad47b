#include <limits>

#include "view/encoder_menu/SettingKey.h"
#include "view/fakes/ViewTest.h"

namespace {

using fakes::QuietAssertions;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

class EncoderMenu : public fakes::ViewTest {
 protected:
  void bindWith(const fakes::FakeConverter::Setting& setting) {
    unit.setSetting(setting);
    bind();
  }
  void show(const fakes::FakeConverter::Setting& setting) {
    unit.setSetting(setting);
    view().updatePopup();
  }
};

TEST_F(EncoderMenu, RecognisesItsPresetsInTheOrderFormatStrategyRateAndStopsAtTheFirstMismatch) {
  bind();
  show({0, 1, 14});
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.getParameter 0", "unit.getParameter 1", "unit.getParameter 1",
                          "unit.getParameter 2", "view.encoderPopup.selectItemAtIndex 0"));
  forget();
  show({1, 1, 16});
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.getParameter 0", "unit.getParameter 0", "unit.getParameter 1",
                          "unit.getParameter 1", "unit.getParameter 2",
                          "view.encoderPopup.selectItemAtIndex 3"));
}

TEST_F(EncoderMenu, NeverAsksForTheRateOfAVBRSetting) {
  bind();
  show({1, 2, 80});
  EXPECT_THAT(record.log.lines(), IsEmpty());
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.getParameter 0", "unit.getParameter 0", "unit.getParameter 1",
                          "unit.getParameter 0", "unit.getParameter 1", "unit.getParameter 2",
                          "unit.getParameter 1",
                          "view.encoderPopup.insertItemWithTitle AAC HE VBR Quality: 80 at 5",
                          "view.encoderPopup[AAC HE VBR Quality: 80].setRepresentedObject Format=1 "
                          "RateQuality=80 Strategy=2",
                          "view.encoderPopup.selectItemAtIndex 5"));
}

TEST_F(EncoderMenu, RecognisesItsPresetsByExactValuesOnly) {
  bind();
  for (const fakes::FakeConverter::Setting& setting :
       {fakes::FakeConverter::Setting{0, 1, 14.5F}, {0.5F, 1, 14}, {0, 1.5F, 14}, {1, 1, 16.25F}}) {
    show(setting);
    EXPECT_EQ(menu().indexOfSelectedItem(), 5);
  }
}

TEST_F(EncoderMenu, PrefersThePlusPresetToACustomEntryOfTheSameSetting) {
  bind();
  menu().insertItemWithTitle("a custom entry", 5);
  menu().itemAtIndex(5)->setRepresentedObject(velk::settingKey({0, 1, 14}));
  show({0, 1, 14});
  EXPECT_EQ(menu().indexOfSelectedItem(), 0);
}

TEST_F(EncoderMenu, RemovesTheItemAboveTheLastBeforeItInsertsIntoAFullMenu) {
  bind();
  for (int quality = 0; quality < 10; ++quality) {
    show({0, 2, static_cast<float>(quality)});
  }
  ASSERT_EQ(menu().numberOfItems(), 16);
  forget();
  show({0, 2, 50});
  EXPECT_THAT(record.calls.starting("view.encoderPopup.insert", "view.encoderPopup.remove"),
              ElementsAre("view.encoderPopup.removeItemAtIndex 14",
                          "view.encoderPopup.insertItemWithTitle AAC VBR Quality: 50 at 5"));
  EXPECT_EQ(menu().numberOfItems(), 16);
  EXPECT_EQ(menu().titles()[14], "AAC VBR Quality: 1");
  EXPECT_EQ(menu().titles()[15], "Custom…");
}

TEST_F(EncoderMenu, KnowsASettingWithoutANumberWhenItSeesItAgain) {
  const float kNaN = std::numeric_limits<float>::quiet_NaN();
  bind();
  show({kNaN, 0, 3});
  show({0, 1, 14});
  show({kNaN, 0, 3});
  EXPECT_EQ(menu().numberOfItems(), 7);
  EXPECT_EQ(view().getEncoderName(), "- ABR 32 Kbps");
}

TEST_F(EncoderMenu, TellsSettingsThatReadTheSameApart) {
  bind();
  show({0, 0, 3.25F});
  show({0, 0, 3.5F});
  EXPECT_EQ(menu().numberOfItems(), 8);
  EXPECT_EQ(menu().titles()[5], menu().titles()[6]);
}

TEST_F(EncoderMenu, SurvivesAnyValueOfAParameter) {
  bind();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  for (const float value : {-1.0F, 1e30F, -1e30F, kInfinity, -kInfinity,
                            std::numeric_limits<float>::quiet_NaN(), 4294967296.0F}) {
    show({value, value, value});
    EXPECT_EQ(view().getEncoderName(), "- - - Kbps") << value;
    show({0, 2, value});
  }
}

TEST_F(EncoderMenu, NamesTheEncoderByTheSelectedTitle) {
  bindWith({0, 1, 10});
  EXPECT_EQ(view().getEncoderName(), "128K AAC");
}

TEST_F(EncoderMenu, GivesTheTextsOfValues) {
  bind();
  EXPECT_EQ(view().stringForFormat(2.7F), "AAC HEv2");
  EXPECT_EQ(view().stringForFormat(3), "-");
  EXPECT_EQ(view().stringForStrategy(1), "VBRC");
  EXPECT_EQ(view().stringForBitRate(16), "320");
  EXPECT_EQ(view().stringForBitRate(16.5F), "-");
}

TEST_F(EncoderMenu, ACustomEntryIsAppliedByMenuItemsOnly) {
  bind();
  fakes::FakeButton button(record.calls, "a button");
  view().setCustomFormat(&button);
  view().setCustomFormat(nullptr);
  // The plus item carries no setting.
  view().setCustomFormat(menu().itemAtIndex(0));
  EXPECT_THAT(record.calls.lines(), IsEmpty());
  view().setCustomFormat(menu().itemAtIndex(menu().indexOfItemWithTag(3)));
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 1", "unit.setParameter 1 = 0",
                                    "unit.setParameter 2 = 7"));
}

TEST_F(EncoderMenu, ACustomEntryStopsAtTheFirstValueThatTheUnitRefuses) {
  bindWith({0, 0, 3});
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    forget();
    unit.failOnce(UnitCall::SetParameter, parameter, -1);
    EXPECT_THROW(view().setCustomFormat(menu().itemAtIndex(5)), ui::AssertionFailure);
    EXPECT_EQ(writes().size(), parameter + 1);
  }
}

TEST_F(EncoderMenu, ARefreshThatCannotReadLeavesTheMenuAlone) {
  bindWith({0, 0, 3});
  unit.setSetting({1, 0, 9});
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    forget();
    unit.failOnce(UnitCall::GetParameter, parameter, -1);
    EXPECT_THROW(view().updatePopup(), ui::AssertionFailure);
    EXPECT_THAT(record.calls.starting("view.encoderPopup"), IsEmpty());
  }
}

class Presets : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
};

TEST_F(Presets, AreReadThenSet) {
  view().setPreset(1);
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.getProperty 24 scope 0 element 0 size 8",
                                                "unit.setProperty 36 = preset 1"));
}

TEST_F(Presets, HaveOneActionEach) {
  view().setOndaraPlusEncoder(nullptr);
  view().set128KAACPreset(nullptr);
  view().setStreamingPreset(nullptr);
  view().setHighQualityPreset(nullptr);
  EXPECT_THAT(writes(),
              ElementsAre("unit.setProperty 36 = preset 0", "unit.setProperty 36 = preset 1",
                          "unit.setProperty 36 = preset 2", "unit.setProperty 36 = preset 3"));
}

TEST_F(Presets, BeyondTheListAreIgnored) {
  for (const UInt32 index : {4U, 5U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    view().setPreset(index);
  }
  EXPECT_THAT(writes(), IsEmpty());
  EXPECT_THAT(record.log.lines(), IsEmpty());
}

TEST_F(Presets, WithoutAnElementAreIgnored) {
  unit.presets[2].reset();
  view().setPreset(2);
  EXPECT_THAT(writes(), IsEmpty());
  EXPECT_THAT(record.log.lines(), IsEmpty());
}

TEST_F(Presets, OfAnEmptyListAreIgnored) {
  unit.presets.clear();
  view().setPreset(0);
  EXPECT_THAT(writes(), IsEmpty());
  EXPECT_THAT(record.log.lines(), IsEmpty());
}

TEST_F(Presets, WithoutAListAreLoggedAsUnavailable) {
  unit.givesPresetList = false;
  view().setPreset(0);
  EXPECT_THAT(record.log.lines(), ElementsAre("unable to get presets 0"));
}

TEST_F(Presets, ThatCannotBeReadAreLoggedWithTheCode) {
  unit.failOnce(UnitCall::GetProperty, kAudioUnitProperty_FactoryPresets, -10879);
  view().setPreset(0);
  EXPECT_THAT(record.log.lines(), ElementsAre("unable to get presets -10879"));
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(Presets, ThatCannotBeSetAreLoggedAndRefreshNothing) {
  unit.failOnce(UnitCall::SetProperty, kAudioUnitProperty_PresentPreset, -10851);
  view().setPreset(3);
  settle();
  EXPECT_THAT(record.log.lines(), ElementsAre("unable to set preset 3: -10851"));
  EXPECT_THAT(record.calls.starting("unit.getParameter"), IsEmpty());
}

TEST_F(Presets, DoNotRefreshTheMenuBeforeTheUnitSaysSo) {
  view().setPreset(2);
  EXPECT_EQ(record.calls.count("view.encoderPopup"), 0U);
  settle();
  EXPECT_EQ(menu().indexOfSelectedItem(), 2);
}

}  // namespace

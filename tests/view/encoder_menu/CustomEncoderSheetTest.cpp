#include <limits>
#include <stdexcept>

#include "view/fakes/ViewTest.h"

namespace {

using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

class CustomEncoderSheet : public fakes::ViewTest {
 protected:
  void bindWith(const fakes::FakeConverter::Setting& setting) {
    unit.setSetting(setting);
    bind();
  }
  void openWith(const fakes::FakeConverter::Setting& setting) {
    bindWith(setting);
    view().setCustomEncoder(nullptr);
    forget();
  }
  velk::Velk_AACEncodingViewSettingsController& controller() {
    return bound->objects().settingsController();
  }
  fakes::FakePopUpButton& popUp(const std::string& name) {
    return bound->control<fakes::FakePopUpButton>("settingsController." + name);
  }
  bool isOpen() {
    return bound->control<fakes::FakeSheet>("settingsController.settingsSheet").visible;
  }
  void refresh(const fakes::FakeConverter::Setting& setting) {
    unit.setSetting(setting);
    controller().updateUI();
  }
};

TEST_F(CustomEncoderSheet, OpensInItsOrder) {
  bindWith({0, 1, 12});
  view().setCustomEncoder(nullptr);
  EXPECT_THAT(record.calls.lines(),
              ElementsAre(
                  // The snapshot.
                  "unit.getParameter 0", "unit.getParameter 1", "unit.getParameter 2",
                  // The controls.
                  "unit.getParameter 0", "unit.getParameter 1", "unit.getParameter 2",
                  "settingsController.typePopup.selectItemAtIndex 0",
                  "settingsController.strategyPopup.selectItemAtIndex 1",
                  "settingsController.rateLabel.setStringValue Base Bit Rate:",
                  "settingsController.rateQualityTabView.selectItemAtIndex 0",
                  "settingsController.bitratePopup.selectItemAtIndex 12",
                  "settingsController.strategyPopup.setEnabled true",
                  "sheets.beginSheet settingsController.settingsSheet over view.settingsButton"));
}

TEST_F(CustomEncoderSheet, DoesNotOpenWhenTheSettingCannotBeRead) {
  bindWith({0, 1, 12});
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    unit.failOnce(UnitCall::GetParameter, parameter, -1);
    EXPECT_THROW(view().setCustomEncoder(nullptr), ui::AssertionFailure);
    EXPECT_FALSE(isOpen());
  }
  forget();
  unit.hostSetsParameter(velk::kConverterParam_RateQuality, 3);
  settle();
  EXPECT_EQ(view().getEncoderName(), "AAC VBRC 32 Kbps");
}

TEST_F(CustomEncoderSheet, ThatCannotBeShownLeavesTheMenuToFollowTheConverter) {
  bindWith({0, 1, 12});
  bound->toolkit.sheets.cannotOpen = true;
  EXPECT_THROW(view().setCustomEncoder(nullptr), std::runtime_error);
  unit.hostSetsSetting({0, 2, 77});
  settle();
  EXPECT_EQ(view().getEncoderName(), "AAC VBR Quality: 77");
}

TEST_F(CustomEncoderSheet, RemovesHEv2BeforeItShowsTheSetting) {
  unit.maximumFormat = 1;
  bindWith({2, 0, 3});
  view().setCustomEncoder(nullptr);
  EXPECT_THAT(record.calls.starting("settingsController.typePopup"),
              ElementsAre("settingsController.typePopup.removeItemAtIndex 2",
                          "settingsController.typePopup.selectItemAtIndex 1"));
}

TEST_F(CustomEncoderSheet, OffersHEv2AgainForAConverterThatHasIt) {
  fakes::FakeConverter without(record.calls);
  without.maximumFormat = 1;
  bindWith({2, 0, 3});
  const std::vector<std::string> all = popUp("typePopup").titles();
  ASSERT_EQ(all.size(), 3U);
  for (int time = 0; time < 2; ++time) {
    view().setAU(&without);
    view().setCustomEncoder(nullptr);
    EXPECT_EQ(popUp("typePopup").titles(), (std::vector<std::string>{all[0], all[1]}));
    controller().cancelPressed(nullptr);
    view().setAU(&unit);
    view().setCustomEncoder(nullptr);
    EXPECT_EQ(popUp("typePopup").titles(), all);
    EXPECT_EQ(popUp("typePopup").indexOfSelectedItem(), 2);
    controller().cancelPressed(nullptr);
  }
  bound.reset();
}

TEST_F(CustomEncoderSheet, OffersHEv2OnceHoweverOftenItOpens) {
  bindWith({0, 0, 3});
  for (int time = 0; time < 3; ++time) {
    view().setCustomEncoder(nullptr);
    EXPECT_EQ(popUp("typePopup").numberOfItems(), 3);
    controller().cancelPressed(nullptr);
  }
  EXPECT_THAT(record.calls.starting("settingsController.typePopup.insert",
                                    "settingsController.typePopup.remove"),
              IsEmpty());
}

TEST_F(CustomEncoderSheet, ShowsAnHETypeWithItsDisplayedStrategyLast) {
  openWith({0, 1, 12});
  refresh({2, 2, 70});
  EXPECT_THAT(record.calls.starting("settingsController."),
              ElementsAre("settingsController.typePopup.selectItemAtIndex 2",
                          "settingsController.strategyPopup.selectItemAtIndex 2",
                          "settingsController.rateLabel.setStringValue Bit Rate:",
                          "settingsController.rateQualityTabView.selectItemAtIndex 1",
                          "settingsController.qualitySlider.setFloatValue 70",
                          "settingsController.strategyPopup.selectItemAtIndex 0",
                          "settingsController.strategyPopup.setEnabled false"));
}

TEST_F(CustomEncoderSheet, ShowsTypesBeyondTheMenuAsHE) {
  openWith({0, 1, 12});
  for (const float format : {3.0F, 4.5F, 1e30F, std::numeric_limits<float>::infinity()}) {
    refresh({format, 0, 3});
    EXPECT_EQ(popUp("typePopup").indexOfSelectedItem(), 1) << format;
    EXPECT_FALSE(popUp("strategyPopup").isEnabled());
  }
}

TEST_F(CustomEncoderSheet, SelectsItemsByTruncation) {
  openWith({0, 1, 12});
  refresh({2.9F, 1.9F, 3});
  EXPECT_EQ(popUp("typePopup").indexOfSelectedItem(), 2);
  refresh({0, 1.9F, 7.9F});
  EXPECT_EQ(popUp("strategyPopup").indexOfSelectedItem(), 1);
  EXPECT_EQ(popUp("bitratePopup").indexOfSelectedItem(), 7);
  // Not exactly VBRC.
  EXPECT_EQ(bound->control<fakes::FakeTextField>("settingsController.rateLabel").text(),
            "Bit Rate:");
}

TEST_F(CustomEncoderSheet, SurvivesAnyValueOfAParameter) {
  openWith({0, 1, 12});
  for (const float value :
       {kNaN, -1.0F, -1e30F, 1e30F, 17.0F, -std::numeric_limits<float>::infinity()}) {
    forget();
    refresh({0, value, value});
    EXPECT_THAT(record.calls.starting("settingsController.strategyPopup.select",
                                      "settingsController.bitratePopup.select"),
                ElementsAre("settingsController.strategyPopup.selectItemAtIndex " +
                                std::to_string(value == 17.0F ? 17 : -1),
                            "settingsController.bitratePopup.selectItemAtIndex " +
                                std::to_string(value == 17.0F ? 17 : -1)))
        << value;
    EXPECT_EQ(popUp("bitratePopup").indexOfSelectedItem(), -1) << value;
    refresh({value, 2, value});
  }
  refresh({kNaN, 0, 3});
  EXPECT_EQ(popUp("typePopup").indexOfSelectedItem(), -1);
}

TEST_F(CustomEncoderSheet, WritesEachControlOnce) {
  openWith({0, 0, 3});
  popUp("typePopup").selectItemAtIndex(2);
  controller().setType(nullptr);
  popUp("strategyPopup").selectItemAtIndex(1);
  controller().setStrategy(nullptr);
  popUp("bitratePopup").selectItemAtIndex(16);
  controller().setBitrate(&popUp("bitratePopup"));
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 2", "unit.setParameter 1 = 1",
                                    "unit.setParameter 2 = 16"));
}

TEST_F(CustomEncoderSheet, TruncatesTheSliderPosition) {
  openWith({0, 2, 90});
  bound->control<fakes::FakeSlider>("settingsController.qualitySlider").userDrags(63.9);
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 2 = 63"));
}

TEST_F(CustomEncoderSheet, RefusesARateThatDoesNotFitTheStrategy) {
  openWith({0, 2, 90});
  popUp("bitratePopup").userPicks(3);
  EXPECT_THAT(writes(), IsEmpty());
  EXPECT_THAT(record.log.lines(), ElementsAre("SetRate() not valid when strategy is VBR"));
}

TEST_F(CustomEncoderSheet, IgnoresSendersWithoutAValue) {
  openWith({0, 0, 3});
  controller().setBitrate(nullptr);
  controller().setQuality(nullptr);
  controller().setBitrate(&controller());
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(CustomEncoderSheet, ClosesInItsOrder) {
  openWith({0, 0, 3});
  popUp("bitratePopup").selectItemAtIndex(9);
  forget();
  controller().OKPressed(nullptr);
  EXPECT_THAT(record.calls.starting("unit.set", "view.encoderPopup.select", "sheets."),
              ElementsAre("sheets.endSheet settingsController.settingsSheet 1",
                          "unit.setParameter 0 = 0", "unit.setParameter 1 = 0",
                          "unit.setParameter 2 = 9", "view.encoderPopup.selectItemAtIndex 5",
                          "sheets.orderOut settingsController.settingsSheet"));
}

TEST_F(CustomEncoderSheet, CancelEndsItWithZero) {
  openWith({0, 0, 3});
  controller().cancelPressed(nullptr);
  EXPECT_EQ(record.calls.lines().front(), "sheets.endSheet settingsController.settingsSheet 0");
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 0", "unit.setParameter 1 = 0",
                                    "unit.setParameter 2 = 3"));
}

TEST_F(CustomEncoderSheet, RefreshesTheMenuOnceForAllThatWasTried) {
  openWith({0, 0, 3});
  for (int rate = 5; rate < 12; ++rate) {
    popUp("bitratePopup").userPicks(rate);
    settle();
  }
  EXPECT_EQ(record.calls.count("view.encoderPopup.selectItemAtIndex"), 0U);
  controller().OKPressed(nullptr);
  EXPECT_EQ(record.calls.count("view.encoderPopup.selectItemAtIndex"), 1U);
  EXPECT_EQ(record.calls.count("view.encoderPopup.insertItemWithTitle"), 1U);
}

TEST_F(CustomEncoderSheet, CancelAfterARefusedValueStillRestores) {
  openWith({0, 0, 3});
  unit.failOnce(UnitCall::SetParameter, 2, -1);
  EXPECT_THROW(popUp("bitratePopup").userPicks(5), ui::AssertionFailure);
  controller().cancelPressed(nullptr);
  EXPECT_EQ(unit.parameters, (std::array<float, 3>{0, 0, 3}));
  EXPECT_FALSE(isOpen());
}

TEST_F(CustomEncoderSheet, ClosesEvenWhenTheUnitRefusesTheSetting) {
  bindWith({0, 0, 3});
  for (const UInt32 parameter : {0U, 1U, 2U}) {
    for (const int code : {0, 1}) {
      view().setCustomEncoder(nullptr);
      settle();
      unit.failOnce(UnitCall::SetParameter, parameter, -1);
      auto& sheet = bound->control<fakes::FakeSheet>("settingsController.settingsSheet");
      EXPECT_THROW(bound->toolkit.sheets.endSheet(sheet, code), ui::AssertionFailure);
      EXPECT_FALSE(isOpen());
      settle();
      forget();
      // The menu is live again.
      unit.announce(velk::kConverterParam_RateQuality);
      settle();
      EXPECT_EQ(record.calls.count("view.encoderPopup.selectItemAtIndex"), 1U);
    }
  }
}

TEST_F(CustomEncoderSheet, AnyOtherCodeMeansCancel) {
  openWith({1, 0, 3});
  unit.setSetting({0, 0, 9});
  auto& sheet = bound->control<fakes::FakeSheet>("settingsController.settingsSheet");
  bound->toolkit.sheets.endSheet(sheet, -7);
  EXPECT_EQ(unit.parameters, (std::array<float, 3>{1, 0, 3}));
}

TEST_F(CustomEncoderSheet, RemembersTheSettingOfItsNewestOpening) {
  openWith({0, 0, 3});
  controller().cancelPressed(nullptr);
  unit.setSetting({0, 2, 44});
  view().setCustomEncoder(nullptr);
  popUp("strategyPopup").userPicks(0);
  forget();
  controller().cancelPressed(nullptr);
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 0", "unit.setParameter 1 = 2",
                                    "unit.setParameter 2 = 44"));
}

}  // namespace

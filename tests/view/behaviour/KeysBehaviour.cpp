#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/behaviour/Stage.h"

namespace {

using namespace behaviour;
using fakes::FakeConverter;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint16_t kKeyA = 0;
constexpr std::uint16_t kKeyS = 1;
constexpr std::uint16_t kKeyB = 11;
constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKey2 = 19;
constexpr std::uint16_t kKeyDelete = 51;
constexpr std::uint16_t kKeypad2 = 84;
constexpr std::uint16_t kKeyForwardDelete = 117;
constexpr const char* kMonitor = "auditionController.monitorControl";
constexpr const char* kSheet = "keyController.keySettingsSheet";

TEST(Keys, OneAndTwoChooseTheSignalOnTheAuditionPage) {
  const auto stage = setStage();
  stage->pressKey(kKey1);
  EXPECT_EQ(stage->unit().monitorSource, 1U);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 0);
  stage->pressKey(kKey2);
  EXPECT_EQ(stage->unit().monitorSource, 0U);
  EXPECT_EQ(stage->selectedSegment(kMonitor), 1);
  EXPECT_THAT(stage->notifications(),
              ElementsAre("aac_monitorSourceActionPerformedNotification",
                          "aac_listeningTestChooseAActionPerformedNotification",
                          "aac_monitorEncodedActionPerformedNotification",
                          "aac_listeningTestChooseBActionPerformedNotification"));
}

TEST(Keys, TheKeypadDoesTheSame) {
  const auto stage = setStage([](FakeConverter& unit) { unit.monitorSource = 1; });
  stage->pressKey(kKeypad2);
  EXPECT_EQ(stage->unit().monitorSource, 0U);
}

TEST(Keys, OneAndTwoAnswerOnTheTestPage) {
  const auto stage = setStage();
  stage->clickTab(1);
  stage->pressKey(kKey1);
  EXPECT_EQ(stage->text("listeningTestController.cycleLabel"), "Test Cycle: 2 of 20");
  stage->pressKey(kKey2);
  EXPECT_EQ(stage->text("listeningTestController.cycleLabel"), "Test Cycle: 3 of 20");
}

TEST(Keys, LettersChooseWhatIsHeardOnTheTestPage) {
  const auto stage = setStage();
  stage->clickTab(1);
  stage->pressKey(kKeyA);
  EXPECT_EQ(stage->state("listeningTestController.aButton"), 1);
  stage->pressKey(kKeyB);
  EXPECT_EQ(stage->state("listeningTestController.aButton"), 0);
  EXPECT_EQ(stage->state("listeningTestController.bButton"), 1);
  stage->pressKey(kKeyS);
  EXPECT_EQ(stage->state("listeningTestController.bButton"), 0);
  EXPECT_EQ(stage->state("listeningTestController.sourceButton"), 1);
  EXPECT_EQ(stage->unit().monitorSource, 1U);
  // Pressed again, it leaves the button on.
  stage->pressKey(kKeyS);
  EXPECT_EQ(stage->state("listeningTestController.sourceButton"), 1);
}

TEST(Keys, LettersDoNothingOnTheAuditionPage) {
  const auto stage = setStage();
  for (const std::uint16_t key : {kKeyA, kKeyB, kKeyS}) {
    stage->pressKey(key);
  }
  EXPECT_THAT(stage->unit().log().starting("unit.set"), IsEmpty());
  EXPECT_EQ(stage->state("listeningTestController.aButton"), 0);
}

TEST(Keys, DeleteClearsTheMeters) {
  const auto stage = setStage();
  stage->pressKey(kKeyDelete);
  EXPECT_THAT(stage->unit().log().starting("unit.set"), ElementsAre("unit.setProperty 5303 = 1"));
  EXPECT_THAT(stage->notifications(), ElementsAre("aac_clearClipActionPerformedNotification"));
}

TEST(Keys, OtherKeysPostNothing) {
  const auto stage = setStage();
  // Forward delete, D, 3, a function key, a code without a label, codes that no key has.
  for (const std::uint16_t key : {kKeyForwardDelete, std::uint16_t{2}, std::uint16_t{20},
                                  std::uint16_t{122}, std::uint16_t{10}}) {
    stage->pressKey(key);
  }
  EXPECT_THAT(stage->notifications(), IsEmpty());
}

TEST(KeyBindingsSheet, ShowsTheKeysThatTheViewDispatches) {
  const auto stage = setStage();
  stage->click("view.settingsButton");
  EXPECT_TRUE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->text("keyController.monitorSourceAuditionField"), "1");
  EXPECT_EQ(stage->text("keyController.monitorCodecAuditionField"), "2");
  EXPECT_EQ(stage->text("keyController.clearClipField"), "\u232B");
  EXPECT_EQ(stage->text("keyController.monitorSourceTestField"), "S");
  EXPECT_EQ(stage->text("keyController.monitorATestField"), "A");
  EXPECT_EQ(stage->text("keyController.monitorBTestField"), "B");
  EXPECT_EQ(stage->text("keyController.chooseATestField"), "1");
  EXPECT_EQ(stage->text("keyController.chooseBTestField"), "2");
}

TEST(KeyBindingsSheet, ClosesByEitherButtonAndChangesNothing) {
  const auto stage = setStage();
  for (const char* button : {"keyController.doneButton", "keyController.cancelButton"}) {
    stage->click("view.settingsButton");
    stage->click(button);
    stage->advance(kSettled);
    EXPECT_FALSE(stage->isSheetOpen(kSheet)) << button;
  }
  EXPECT_THAT(stage->unit().log().starting("unit.set"), IsEmpty());
  stage->pressKey(kKey1);
  EXPECT_EQ(stage->unit().monitorSource, 1U);
}

TEST(KeyBindingsSheet, LetsTheEncoderMenuFollowTheUnit) {
  const auto stage = setStage();
  stage->click("view.settingsButton");
  stage->unit().hostSetsPreset(2);
  stage->advance(kSettled);
  EXPECT_EQ(stage->selectedItem("view.encoderPopup"), kStreamingItem);
}

}  // namespace

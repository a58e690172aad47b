#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/listening_test/TestPage.h"

namespace listening_test {
namespace {

using fakes::FakeTextField;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(LearningMode, ShowsItsNameAloneWhenItIsSwitchedOn) {
  TestPage page;
  page.click("learnModeButton");
  EXPECT_THAT(page.happened(), ElementsAre("cycleLabel.setStringValue Learning Mode"));
}

TEST(LearningMode, SaysBesideTheChosenButtonThatTheAnswerIsRight) {
  TestPage page;
  page.click("learnModeButton");
  page.record.calls.clear();
  page.answer(true);
  EXPECT_THAT(page.happened(),
              ElementsAre("unit.setProperty 5304 = 1", "view.encoderPopup.setEnabled false",
                          "bResultsText.setHidden true", "aResultsText.setStringValue Correct",
                          "aResultsText.setTextColor 0 0.5 0 1", "aResultsText.setHidden false",
                          "sourceButton.setState 1", "aButton.setState 0", "bButton.setState 0",
                          "unit.setProperty 5301 = 1", "aIsSourceButton.setState 0",
                          "bIsSourceButton.setState 0"));
}

TEST(LearningMode, SaysBesideTheChosenButtonThatTheAnswerIsWrong) {
  TestPage page;
  page.click("learnModeButton");
  page.answer(true);
  page.record.calls.clear();
  page.answer(false);
  EXPECT_THAT(page.happened(),
              ElementsAre("aResultsText.setHidden true", "bResultsText.setStringValue Incorrect",
                          "bResultsText.setTextColor 0.5 0 0 1", "bResultsText.setHidden false",
                          "sourceButton.setState 1", "aButton.setState 0", "bButton.setState 0",
                          "unit.setProperty 5301 = 1", "aIsSourceButton.setState 0",
                          "bIsSourceButton.setState 0"));
}

TEST(LearningMode, CallsAnAnswerWithoutAnyButtonOnIncorrectBesideB) {
  for (const bool aIsSource : {true, false}) {
    TestPage page;
    page.restart(aIsSource);
    page.click("learnModeButton");
    page.controller().chooseA(nullptr);
    EXPECT_TRUE(page.control<FakeTextField>("aResultsText").isHidden());
    EXPECT_FALSE(page.control<FakeTextField>("bResultsText").isHidden());
    EXPECT_EQ(page.text("bResultsText"), "Incorrect");
  }
}

TEST(LearningMode, HidesTheVerdictWhenAOrBIsHeardAndKeepsItForTheSource) {
  for (const char* button : {"aButton", "bButton"}) {
    TestPage page;
    page.click("learnModeButton");
    page.answer(true);
    page.click("sourceButton");
    EXPECT_FALSE(page.control<FakeTextField>("aResultsText").isHidden());
    page.record.calls.clear();
    page.click(button);
    const auto happened = page.happened();
    ASSERT_EQ(happened.size(), 5U) << button;
    EXPECT_EQ(happened[3], "aResultsText.setHidden true") << button;
    EXPECT_EQ(happened[4], "bResultsText.setHidden true") << button;
  }
}

TEST(LearningMode, KeepsCountingFromWhereTheTestStood) {
  TestPage page;
  page.answerTimes(2, true);
  page.click("learnModeButton");
  page.answer(true);
  EXPECT_EQ(page.text("cycleLabel"), "Learning Mode");
  page.endTest();
  EXPECT_EQ(page.text("resultsField"), "3/3 (100% Correct)");
}

TEST(LearningMode, NeverEndsByItself) {
  TestPage page;
  page.click("learnModeButton");
  page.answerTimes(100, true);
  EXPECT_FALSE(page.isSheetOpen());
  page.endTest();
  EXPECT_EQ(page.text("cyclesField"), "100");
  EXPECT_EQ(page.text("resultsField"), "100/100 (100% Correct)");
  EXPECT_EQ(page.text("summaryField"),
            "You successfully identified the encoded audio with a 95% confidence rating.");
}

TEST(LearningMode, StaysOnWhenTheTestIsEnded) {
  TestPage page;
  page.click("learnModeButton");
  page.answer(true);
  page.record.calls.clear();
  page.endTest();
  EXPECT_EQ(page.text("cycleLabel"), "Learning Mode");
  EXPECT_EQ(page.button("learnModeButton").state(), 1);
  EXPECT_TRUE(page.control<FakeTextField>("aResultsText").isHidden());
  EXPECT_EQ(page.unit.listeningTestActive, 0U);
}

TEST(LearningMode, DiscardsTheCountsButNeitherDrawNorTestWhenItIsSwitchedOff) {
  TestPage page;
  page.click("learnModeButton");
  page.answer(true, false);
  page.record.calls.clear();
  page.click("learnModeButton");
  EXPECT_THAT(page.happened(),
              ElementsAre("aResultsText.setHidden true", "bResultsText.setHidden true",
                          "cycleLabel.setStringValue Test Cycle: 1"));
  EXPECT_EQ(page.unit.listeningTestActive, 1U);
  page.click("aButton");
  EXPECT_EQ(page.unit.monitorSource, 0U);
  page.endTest();
  EXPECT_EQ(page.text("resultsField"), "0/0- Test aborted");
}

TEST(LearningMode, LeavesVerdictsAloneOnMonitoringWhenItIsOff) {
  TestPage page;
  page.click("aButton");
  page.click("bButton");
  EXPECT_EQ(page.record.calls.count("listeningTestController.aResultsText"), 0U);
  EXPECT_EQ(page.record.calls.count("listeningTestController.bResultsText"), 0U);
}

}  // namespace
}  // namespace listening_test

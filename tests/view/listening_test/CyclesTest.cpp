#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "view/listening_test/TestPage.h"

namespace listening_test {
namespace {

using fakes::FakeConverter;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace velk;

constexpr std::uint16_t kKeyA = 0;
constexpr std::uint16_t kKeyS = 1;
constexpr std::uint16_t kKeyB = 11;
constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKey2 = 19;

TEST(ListeningTest, SeedsTheGeneratorWithTheProcessorTimeAndDrawsOnce) {
  fakes::CallLog calls;
  fakes::FakeToolkit toolkit(calls);
  const std::clock_t before = std::clock();
  const Velk_AACEncodingViewListeningTestController controller(toolkit.services);
  const int afterTheDraw = std::rand();
  const std::clock_t after = std::clock();
  bool found = false;
  for (std::clock_t time = before; time <= after && !found; ++time) {
    std::srand(static_cast<unsigned>(time));
    std::rand();
    found = std::rand() == afterTheDraw;
  }
  EXPECT_TRUE(found);
}

TEST(ListeningTest, TakesItsHeightWhenItsPageIsShown) {
  TestPage page;
  page.tabs().userClicks(0);
  page.record.calls.clear();
  page.controller().prepare();
  EXPECT_THAT(page.happened(), ElementsAre("native.applyFrameSize 560 x 255"));
}

TEST(ListeningTest, RunsNothingTwiceWhenItIsPreparedTwice) {
  TestPage page;
  page.controller().prepare();
  page.record.calls.clear();
  page.view->native->pressKey(kKey1);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 2 of 20");
  EXPECT_EQ(page.record.calls.count("listeningTestController.aIsSourceButton.performClick"), 1U);
}

TEST(ListeningTest, MovesFromTheFirstAnswerToTheSecondCycleInOrder) {
  TestPage page;
  page.answer(true);
  EXPECT_THAT(
      page.happened(),
      ElementsAre("unit.setProperty 5304 = 1", "view.encoderPopup.setEnabled false",
                  "cycleLabel.setStringValue Test Cycle: 2 of 20", "sourceButton.setState 1",
                  "aButton.setState 0", "bButton.setState 0", "unit.setProperty 5301 = 1",
                  "aIsSourceButton.setState 0", "bIsSourceButton.setState 0"));
}

TEST(ListeningTest, StartsTheUnitsTestOnlyOnce) {
  TestPage page;
  page.answer(true);
  page.record.calls.clear();
  page.answer(false);
  EXPECT_EQ(page.record.calls.count("unit.setProperty 5304"), 0U);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 3 of 20");
}

TEST(ListeningTest, EndsAfterTheLastAnswerInOrder) {
  TestPage page;
  page.answerTimes(19, false);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 20 of 20");
  page.record.calls.clear();
  page.answer(false);
  EXPECT_THAT(
      page.happened(),
      ElementsAre(testing::StartsWith("encoderField.setStringValue "),
                  "cyclesField.setIntegerValue 20", "resultsField.setStringValue 0/20 (0% Correct)",
                  testing::StartsWith("summaryField.setStringValue You were not successful"),
                  "sheets.beginSheet listeningTestController.resultsSheet over "
                  "listeningTestController.sourceButton",
                  "cycleLabel.setStringValue Test Cycle: 1", "aResultsText.setHidden true",
                  "bResultsText.setHidden true", "aIsSourceButton.setState 0",
                  "bIsSourceButton.setState 0", "unit.setProperty 5304 = 0",
                  "view.encoderPopup.setEnabled true"));
}

TEST(ListeningTest, EndsAtOnceWhenTheScoreProvesIt) {
  struct Case {
    int wrongFirst;
    int endsAfter;
    const char* results;
  };
  // Wrong answers first, then only right ones: the fewest answers that reach the threshold.
  for (const Case& test :
       {Case{0, 10, "10/10 (100% Correct)"}, Case{2, 10, "8/10 (80% Correct)"},
        Case{3, 11, "8/11 (73% Correct)"}, Case{4, 13, "9/13 (69% Correct)"},
        Case{5, 16, "11/16 (69% Correct)"}, Case{6, 18, "12/18 (67% Correct)"}}) {
    TestPage page;
    page.answerTimes(test.wrongFirst, false);
    page.answerTimes(test.endsAfter - test.wrongFirst - 1, true);
    EXPECT_FALSE(page.isSheetOpen()) << test.wrongFirst;
    page.answer(true);
    EXPECT_TRUE(page.isSheetOpen()) << test.wrongFirst;
    EXPECT_EQ(page.text("resultsField"), test.results);
    EXPECT_EQ(page.text("summaryField"),
              "You successfully identified the encoded audio with a 95% confidence rating.");
  }
}

TEST(ListeningTest, GoesToTheTwentiethAnswerWhenTheScoreProvesNothing) {
  TestPage page;
  page.answerTimes(7, false);
  page.answerTimes(12, true);
  EXPECT_FALSE(page.isSheetOpen());
  page.answer(true);
  EXPECT_TRUE(page.isSheetOpen());
  EXPECT_EQ(page.text("cyclesField"), "20");
  EXPECT_EQ(page.text("resultsField"), "13/20 (65% Correct)");
  EXPECT_EQ(page.text("summaryField"),
            "You were not successful in identifying the encoded audio in a statistically "
            "significant manner. You needed 14 correct answers to pass this test");
}

TEST(ListeningTest, CountsAnAnswerWithoutAnyButtonOnAsWrong) {
  TestPage page;
  page.controller().chooseA(nullptr);
  page.endTest();
  EXPECT_EQ(page.text("resultsField"), "0/1 (0% Correct)");
}

TEST(ListeningTest, ReadsTheAnswerFromTheButtonsWhicheverActionArrives) {
  for (const bool aIsSource : {true, false}) {
    TestPage page;
    page.restart(aIsSource);
    page.button("aIsSourceButton").setState(1);
    page.controller().chooseB(nullptr);
    page.endTest();
    EXPECT_EQ(page.text("resultsField"), aIsSource ? "1/1 (100% Correct)" : "0/1 (0% Correct)");
  }
}

TEST(ListeningTest, CountsAnAnswerWithBothButtonsOnAsCorrect) {
  for (const bool aIsSource : {true, false}) {
    TestPage page;
    page.restart(aIsSource);
    page.button("aIsSourceButton").setState(1);
    page.click("bIsSourceButton");
    page.endTest();
    EXPECT_EQ(page.text("resultsField"), "1/1 (100% Correct)");
  }
}

TEST(ListeningTest, TakesTwoPressesOfOneAnswerKeyAsTwoAnswers) {
  TestPage page;
  nextDrawMakesASource(true);
  page.view->native->pressKey(kKey1);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 2 of 20");
  nextDrawMakesASource(true);
  page.view->native->pressKey(kKey1);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 3 of 20");
  page.endTest();
  EXPECT_EQ(page.text("resultsField"), "2/2 (100% Correct)");
}

TEST(ListeningTest, DiscardsItselfForASenderThatIsAWindow) {
  TestPage page;
  page.answerTimes(3, true);
  page.record.calls.clear();
  ui::Window alert;
  page.controller().endTest(&alert);
  EXPECT_THAT(page.happened(),
              ElementsAre("cycleLabel.setStringValue Test Cycle: 1", "aResultsText.setHidden true",
                          "bResultsText.setHidden true", "aIsSourceButton.setState 0",
                          "bIsSourceButton.setState 0", "unit.setProperty 5304 = 0",
                          "view.encoderPopup.setEnabled true"));
}

TEST(ListeningTest, GoesOnWhenTheUnitRefusesToRunATest) {
  TestPage page;
  page.unit.failAlways(UnitCall::SetProperty, kConverterProperty_ListeningTestActive, -1);
  page.answer(true);
  page.answer(true);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 3 of 20");
  EXPECT_EQ(page.record.calls.count("unit.setProperty 5304 = 1"), 2U);
  EXPECT_TRUE(page.view->control<ui::View>("view.encoderPopup").isEnabled());
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

TEST(ListeningTest, HearsNoKeysWhileItsPageIsHidden) {
  TestPage page;
  page.tabs().userClicks(0);
  page.advance(60);
  page.record.calls.clear();
  for (const std::uint16_t key : {kKeyS, kKeyA, kKeyB}) {
    page.view->native->pressKey(key);
  }
  page.view->native->pressKey(kKey2);
  EXPECT_EQ(page.record.calls.count("listeningTestController."), 0U);
}

TEST(ListeningTest, HearsOnlyItsOwnView) {
  TestPage page;
  FakeConverter otherUnit(page.record.calls);
  fakes::BoundView other(page.record, otherUnit);
  other.control<fakes::FakeTabView>("view.tabView").userClicks(1);
  other.native->pressKey(kKey1);
  EXPECT_EQ(other.control<fakes::FakeTextField>("listeningTestController.cycleLabel").text(),
            "Test Cycle: 2 of 20");
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 1");
  EXPECT_EQ(page.unit.listeningTestActive, 0U);
}

TEST(ListeningTest, LeavesNoObserverBehindWhenItIsDestroyed) {
  TestPage page;
  const void* view = &page.view->view();
  page.view.reset();
  page.record.calls.clear();
  ui::NotificationCenter::defaultCenter().post(listeningTestChooseAActionPerformedNotification,
                                               view);
  EXPECT_EQ(page.record.calls.count("listeningTestController."), 0U);
}

TEST(ListeningTest, GivesThePassThresholdUnderItsName) {
  TestPage page;
  EXPECT_EQ(page.controller().requiredCorrectAnswersForTrialSize(0), 14U);
  EXPECT_EQ(page.controller().requiredCorrectAnswersForTrialSize(10), 8U);
  EXPECT_EQ(page.controller().requiredCorrectAnswersForTrialSize(20), 14U);
  EXPECT_EQ(page.controller().requiredCorrectAnswersForTrialSize(21), 14U);
}

}  // namespace
}  // namespace listening_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "view/behaviour/Stage.h"

namespace {

using behaviour::kSettled;
using behaviour::setStage;
using behaviour::Stage;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace velk;

constexpr const char* kMenu = "view.encoderPopup";
constexpr const char* kLabel = "listeningTestController.cycleLabel";
constexpr const char* kSource = "listeningTestController.sourceButton";
constexpr const char* kA = "listeningTestController.aButton";
constexpr const char* kB = "listeningTestController.bButton";
constexpr const char* kAIsSource = "listeningTestController.aIsSourceButton";
constexpr const char* kBIsSource = "listeningTestController.bIsSourceButton";
constexpr const char* kAVerdict = "listeningTestController.aResultsText";
constexpr const char* kBVerdict = "listeningTestController.bResultsText";
constexpr const char* kEndTest = "listeningTestController.endTestButton";
constexpr const char* kLearn = "listeningTestController.learnModeButton";
constexpr const char* kSave = "listeningTestController.saveResultsButton";
constexpr const char* kSheet = "listeningTestController.resultsSheet";
constexpr const char* kCycles = "listeningTestController.cyclesField";
constexpr const char* kResults = "listeningTestController.resultsField";
constexpr const char* kSummary = "listeningTestController.summaryField";
constexpr const char* kEncoder = "listeningTestController.encoderField";

constexpr std::uint16_t kKeyA = 0;
constexpr std::uint16_t kKeyS = 1;
constexpr std::uint16_t kKeyB = 11;

constexpr const char* kAborted = "0/0- Test aborted";
constexpr const char* kIncomplete =
    "Test Incomplete. You need to perform at least 10 tests for your results to be statistically "
    "significant.";
constexpr const char* kPassed =
    "You successfully identified the encoded audio with a 95% confidence rating.";

std::unique_ptr<Stage> setTestPage() {
  auto stage = setStage();
  stage->clickTab(1);
  stage->advance(kSettled);
  return stage;
}

/// Listens to A to find out what it plays.
bool aPlaysTheSource(Stage& stage) {
  stage.pressKey(kKeyS);
  stage.pressKey(kKeyA);
  return stage.unit().monitorSource != 0;
}

void answer(Stage& stage, bool correctly) {
  stage.click(aPlaysTheSource(stage) == correctly ? kAIsSource : kBIsSource);
}

void answerTimes(Stage& stage, int times, bool correctly) {
  for (int i = 0; i < times; ++i) {
    answer(stage, correctly);
  }
}

/// Ready for a new test, whatever is heard.
void expectReady(Stage& stage) {
  EXPECT_EQ(stage.text(kLabel), "Test Cycle: 1");
  EXPECT_EQ(stage.unit().listeningTestActive, 0U);
  EXPECT_TRUE(stage.isEnabled(kMenu));
  EXPECT_TRUE(stage.isHidden(kAVerdict));
  EXPECT_TRUE(stage.isHidden(kBVerdict));
  EXPECT_EQ(stage.state(kAIsSource), 0);
  EXPECT_EQ(stage.state(kBIsSource), 0);
}

void expectMonitorButtons(Stage& stage, int source, int a, int b) {
  EXPECT_THAT((std::vector{stage.state(kSource), stage.state(kA), stage.state(kB)}),
              ElementsAre(source, a, b));
}

TEST(ListeningTest, IsReadyWhenItsPageIsShown) {
  const auto stage = setTestPage();
  expectReady(*stage);
  EXPECT_EQ(stage->state(kLearn), 0);
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
}

TEST(ListeningTest, SwitchesOneMonitorButtonOnAtATime) {
  const auto stage = setTestPage();
  stage->click(kSource);
  expectMonitorButtons(*stage, 1, 0, 0);
  EXPECT_EQ(stage->unit().monitorSource, 1U);
  stage->click(kA);
  expectMonitorButtons(*stage, 0, 1, 0);
  const UInt32 heardFromA = stage->unit().monitorSource;
  stage->click(kB);
  expectMonitorButtons(*stage, 0, 0, 1);
  EXPECT_NE(stage->unit().monitorSource, heardFromA);
  EXPECT_EQ(stage->unit().listeningTestActive, 0U);
}

TEST(ListeningTest, MonitorsWithTheKeysAndNeverOff) {
  const auto stage = setTestPage();
  stage->pressKey(kKeyS);
  expectMonitorButtons(*stage, 1, 0, 0);
  stage->pressKey(kKeyA);
  expectMonitorButtons(*stage, 0, 1, 0);
  stage->pressKey(kKeyA);
  expectMonitorButtons(*stage, 0, 1, 0);
  stage->pressKey(kKeyB);
  stage->pressKey(kKeyB);
  expectMonitorButtons(*stage, 0, 0, 1);
}

TEST(ListeningTest, StartsWithTheFirstAnswer) {
  const auto stage = setTestPage();
  stage->click(kA);
  stage->click(kAIsSource);
  EXPECT_EQ(stage->text(kLabel), "Test Cycle: 2 of 20");
  EXPECT_EQ(stage->unit().listeningTestActive, 1U);
  EXPECT_FALSE(stage->isEnabled(kMenu));
  EXPECT_EQ(stage->unit().monitorSource, 1U);
  expectMonitorButtons(*stage, 1, 0, 0);
  EXPECT_EQ(stage->state(kAIsSource), 0);
  EXPECT_EQ(stage->state(kBIsSource), 0);
}

TEST(ListeningTest, DrawsBothAssignments) {
  const auto stage = setTestPage();
  stage->click(kLearn);
  int asSource = 0;
  constexpr int kCycles64 = 64;
  for (int cycle = 0; cycle < kCycles64; ++cycle) {
    asSource += aPlaysTheSource(*stage) ? 1 : 0;
    stage->click(kAIsSource);
  }
  EXPECT_GT(asSource, 0);
  EXPECT_LT(asSource, kCycles64);
}

TEST(ListeningTest, EndsWithAPassRightAfterTheTenthAnswerWhenEightWereRight) {
  const auto stage = setTestPage();
  answerTimes(*stage, 2, false);
  answerTimes(*stage, 7, true);
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  answer(*stage, true);
  EXPECT_TRUE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->text(kCycles), "10");
  EXPECT_EQ(stage->text(kResults), "8/10 (80% Correct)");
  EXPECT_EQ(stage->text(kSummary), kPassed);
  stage->confirmResults();
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  expectReady(*stage);
}

TEST(ListeningTest, EndsWithAFailureAfterTwentyAnswers) {
  const auto stage = setTestPage();
  answerTimes(*stage, 19, false);
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->text(kLabel), "Test Cycle: 20 of 20");
  answer(*stage, false);
  EXPECT_TRUE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->text(kCycles), "20");
  EXPECT_EQ(stage->text(kResults), "0/20 (0% Correct)");
  EXPECT_EQ(stage->text(kSummary),
            "You were not successful in identifying the encoded audio in a statistically "
            "significant manner. You needed 14 correct answers to pass this test");
  stage->confirmResults();
  expectReady(*stage);
}

TEST(ListeningTest, IsAbortedByTheEndButtonBeforeAnyAnswer) {
  const auto stage = setTestPage();
  stage->click(kEndTest);
  EXPECT_TRUE(stage->isSheetOpen(kSheet));
  EXPECT_EQ(stage->text(kCycles), "0");
  EXPECT_EQ(stage->text(kResults), kAborted);
  EXPECT_EQ(stage->text(kSummary), kIncomplete);
  EXPECT_EQ(stage->text(kEncoder),
            stage->itemTitles(kMenu).at(static_cast<std::size_t>(stage->selectedItem(kMenu))));
  stage->confirmResults();
  expectReady(*stage);
}

TEST(ListeningTest, ShowsTheScoreSoFarWhenTheEndButtonStopsIt) {
  const auto stage = setTestPage();
  answer(*stage, true);
  answer(*stage, false);
  answer(*stage, true);
  stage->click(kEndTest);
  EXPECT_EQ(stage->text(kCycles), "3");
  EXPECT_EQ(stage->text(kResults), "2/3 (67% Correct)");
  EXPECT_EQ(stage->text(kSummary), kIncomplete);
  stage->confirmResults();
  expectReady(*stage);
}

TEST(LearningMode, TellsEachVerdictBesideTheChosenButton) {
  const auto stage = setTestPage();
  stage->click(kLearn);
  EXPECT_EQ(stage->text(kLabel), "Learning Mode");
  for (int cycle = 0; cycle < 30; ++cycle) {
    const bool sayA = cycle % 2 == 0;
    const bool correct = aPlaysTheSource(*stage) == sayA;
    EXPECT_TRUE(stage->isHidden(kAVerdict));
    EXPECT_TRUE(stage->isHidden(kBVerdict));
    stage->click(sayA ? kAIsSource : kBIsSource);
    EXPECT_EQ(stage->isHidden(kAVerdict), !sayA);
    EXPECT_EQ(stage->isHidden(kBVerdict), sayA);
    const char* verdict = sayA ? kAVerdict : kBVerdict;
    EXPECT_EQ(stage->text(verdict), correct ? "Correct" : "Incorrect");
    EXPECT_EQ(stage->isRed(verdict), !correct);
    EXPECT_EQ(stage->text(kLabel), "Learning Mode");
  }
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
}

TEST(LearningMode, KeepsTheVerdictWhileTheSourceIsHeard) {
  const auto stage = setTestPage();
  stage->click(kLearn);
  stage->click(kAIsSource);
  stage->click(kSource);
  EXPECT_FALSE(stage->isHidden(kAVerdict));
  stage->click(kB);
  EXPECT_TRUE(stage->isHidden(kAVerdict));
}

TEST(LearningMode, EndsWithTheCountsOfTestAndLearningTogether) {
  const auto stage = setTestPage();
  answerTimes(*stage, 3, true);
  stage->click(kLearn);
  answerTimes(*stage, 9, true);
  stage->click(kEndTest);
  EXPECT_EQ(stage->text(kResults), "12/12 (100% Correct)");
  EXPECT_EQ(stage->text(kSummary), kPassed);
  stage->confirmResults();
  EXPECT_EQ(stage->text(kLabel), "Learning Mode");
  EXPECT_EQ(stage->unit().listeningTestActive, 0U);
}

TEST(LearningMode, DiscardsEverythingButTheRunningTestWhenItIsSwitchedOff) {
  const auto stage = setTestPage();
  stage->click(kLearn);
  answerTimes(*stage, 3, true);
  stage->click(kLearn);
  EXPECT_EQ(stage->text(kLabel), "Test Cycle: 1");
  EXPECT_TRUE(stage->isHidden(kAVerdict));
  EXPECT_TRUE(stage->isHidden(kBVerdict));
  EXPECT_EQ(stage->unit().listeningTestActive, 1U);
  EXPECT_FALSE(stage->isEnabled(kMenu));
  stage->click(kEndTest);
  EXPECT_EQ(stage->text(kResults), kAborted);
}

/// A folder that is removed with the test.
class ResultsFile : public testing::Test {
 protected:
  ResultsFile()
      : folder_(std::filesystem::path(testing::TempDir()) /
                ("listening-test-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(folder_);
  }
  ~ResultsFile() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path file() const { return folder_ / "results.txt"; }
  std::vector<std::string> lines() const {
    std::ifstream stream(file());
    std::vector<std::string> found;
    for (std::string line; std::getline(stream, line);) {
      found.push_back(line);
    }
    return found;
  }

 private:
  std::filesystem::path folder_;
};

TEST_F(ResultsFile, TellsWhatTheSheetShows) {
  const auto stage = setTestPage();
  answerTimes(*stage, 3, false);
  answerTimes(*stage, 8, true);
  ASSERT_TRUE(stage->isSheetOpen(kSheet));
  stage->click(kSave);
  stage->willSaveTo(file());
  stage->confirmResults();
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  EXPECT_THAT(stage->proposedNames(), ElementsAre("ListeningTestResults-1"));
  EXPECT_THAT(lines(),
              ElementsAre("Listening Test Results", "======================", "",
                          testing::StartsWith("Date: "), "", "Encoder: " + stage->text(kEncoder),
                          "Test Cycles: 11", "Results: 8/11 (73% Correct)", "", kPassed));
}

TEST_F(ResultsFile, IsNotWrittenWhileTheBoxIsOff) {
  const auto stage = setTestPage();
  stage->click(kEndTest);
  stage->willSaveTo(file());
  stage->confirmResults();
  EXPECT_THAT(stage->proposedNames(), IsEmpty());
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ResultsFile, GetsTheNextNumberAfterACancelledPanel) {
  const auto stage = setTestPage();
  stage->click(kEndTest);
  stage->click(kSave);
  stage->willSaveTo(std::nullopt);
  stage->confirmResults();
  EXPECT_FALSE(stage->isSheetOpen(kSheet));
  EXPECT_THAT(lines(), IsEmpty());
  stage->click(kEndTest);
  EXPECT_EQ(stage->state(kSave), 1);
  stage->willSaveTo(file());
  stage->confirmResults();
  EXPECT_THAT(stage->proposedNames(),
              ElementsAre("ListeningTestResults-1", "ListeningTestResults-2"));
  EXPECT_THAT(lines().back(), testing::StartsWith("0/0- Test abortedTest Incomplete."));
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "listening_test/SavingFixture.h"

namespace listening_test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;

TEST_F(ResultsSaving, WritesTheTestThatJustEnded) {
  TestPage page;
  page.chooseEncoder({0, 0, 10});
  save(page, 4);
  const std::string text = content();
  EXPECT_THAT(text,
              testing::StartsWith("Listening Test Results\n======================\n\nDate: "));
  EXPECT_THAT(text, EndsWith("\n\nEncoder: AAC ABR 128 Kbps\n"
                             "Test Cycles: 4\n"
                             "Results: 4/4 (100% Correct)\n"
                             "\n"
                             "Test Incomplete. You need to perform at least 10 tests for your "
                             "results to be statistically significant."));
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ResultsSaving, WritesTheDateOfSaving) {
  TestPage page;
  const auto& localization = *page.view->toolkit.localization;
  const std::string before = localization.longDateShortTime(std::chrono::system_clock::now());
  save(page, 2);
  const std::string after = localization.longDateShortTime(std::chrono::system_clock::now());
  EXPECT_THAT(content(), testing::AnyOf(HasSubstr("Date: " + before + "\n\n"),
                                        HasSubstr("Date: " + after + "\n\n")));
}

TEST_F(ResultsSaving, AsksUnderTheResultsSheetAndClosesItAfterwards) {
  TestPage page;
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.record.calls.clear();
  bool sheetWasOpen = false;
  page.sheets().whileSavePanelRuns = [&] { sheetWasOpen = page.isSheetOpen(); };
  page.confirmResults();
  EXPECT_TRUE(sheetWasOpen);
  EXPECT_THAT(page.happened(), ElementsAre("sheets.runSavePanel ListeningTestResults-1 over "
                                           "listeningTestController.sourceButton",
                                           "sheets.endSheet listeningTestController.resultsSheet 1",
                                           "sheets.orderOut listeningTestController.resultsSheet"));
}

TEST_F(ResultsSaving, TitlesThePanelAndAllowsTextFilesAlone) {
  TestPage page;
  save(page, 1);
  ASSERT_THAT(page.sheets().savePanels(), SizeIs(1));
  EXPECT_EQ(page.sheets().savePanels()[0].title, "Save Test Results");
  EXPECT_EQ(page.sheets().savePanels()[0].allowedFileType, "txt");
}

TEST_F(ResultsSaving, UsesUpANumberWithEveryPanelEvenACancelledOne) {
  TestPage page;
  std::vector<std::string> names;
  for (const bool cancelled : {true, false, true, true, false}) {
    page.endTest();
    page.button("saveResultsButton").setState(1);
    page.sheets().saveAnswer.reset();
    if (!cancelled) {
      page.sheets().saveAnswer = file();
    }
    page.confirmResults();
    EXPECT_FALSE(page.isSheetOpen());
  }
  for (const auto& panel : page.sheets().savePanels()) {
    names.push_back(panel.proposedName);
  }
  EXPECT_THAT(names, ElementsAre("ListeningTestResults-1", "ListeningTestResults-2",
                                 "ListeningTestResults-3", "ListeningTestResults-4",
                                 "ListeningTestResults-5"));
  TestPage another;
  save(another, 1);
  EXPECT_EQ(another.sheets().savePanels()[0].proposedName, "ListeningTestResults-1");
}

TEST_F(ResultsSaving, WritesNothingWhenThePanelIsCancelled) {
  TestPage page;
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.confirmResults();
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(ResultsSaving, AlwaysTellsOfTheNewestTest) {
  TestPage page;
  page.answerTimes(5, true);
  page.endTest();
  page.confirmResults();
  save(page, 3);
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 3\nResults: 3/3 (100% Correct)\n"));
}

TEST_F(ResultsSaving, NamesTheEncoderThatIsSetWhenItSaves) {
  TestPage page;
  page.chooseEncoder({0, 0, 10});
  page.answerTimes(2, true);
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.sheets().saveAnswer = file();
  page.sheets().whileSavePanelRuns = [&] { page.chooseEncoder({0, 0, 11}); };
  page.confirmResults();
  EXPECT_EQ(page.text("encoderField"), "AAC ABR 128 Kbps");
  EXPECT_THAT(content(), HasSubstr("Encoder: AAC ABR 160 Kbps\n"));
}

TEST_F(ResultsSaving, CountsASingleAnswerOnTheSheetButNotInTheFile) {
  TestPage page;
  save(page, 1);
  EXPECT_EQ(page.text("resultsField"), "1/1 (100% Correct)");
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 1\n0/0- Test abortedTest Incomplete."));
}

TEST_F(ResultsSaving, MarksATestWithoutAnswersAsAborted) {
  TestPage page;
  save(page, 0);
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 0\n0/0- Test abortedTest Incomplete."));
}

TEST_F(ResultsSaving, FailsNineAnswersOnTheSheetAndCallsThemIncompleteInTheFile) {
  TestPage page;
  save(page, 9);
  EXPECT_THAT(page.text("summaryField"), HasSubstr("You needed 14 correct answers"));
  EXPECT_THAT(content(), HasSubstr("Results: 9/9 (100% Correct)\n\nTest Incomplete."));
}

TEST_F(ResultsSaving, ReplacesAnOlderFile) {
  writeOldFile();
  TestPage page;
  save(page, 2);
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 2\n"));
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ResultsSaving, ProposesANameInTheUsersLanguage) {
  TestPage page(VELK_RESOURCES, "fr", "fr_FR");
  save(page, 2);
  EXPECT_EQ(page.sheets().savePanels()[0].proposedName, "Résultats-test-écoute-1");
}

TEST_F(ResultsSaving, ForgetsTheLastTestWhenItsPageIsLeft) {
  TestPage page;
  page.answerTimes(2, true);
  page.endTest();
  page.confirmResults();
  page.tabs().userClicks(0);
  page.tabs().userClicks(1);
  page.sheets().saveAnswer = file();
  page.controller().saveResultFile();
  EXPECT_EQ(filesInFolder(), 0U);
}

}  // namespace
}  // namespace listening_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "view/listening_test/SavingFixture.h"

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

/// The letters that names of months and words of dates need.
std::string inMacRoman(const std::string& utf8) {
  std::string bytes;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const std::string two = utf8.substr(i, 2);
    const char* roman = two == "ä" ? "\x8A" : two == "à" ? "\x88" : two == "é" ? "\x8E" : "\x9E";
    const bool isAscii = (static_cast<unsigned char>(utf8[i]) & 0x80U) == 0;
    EXPECT_TRUE(isAscii || two == "ä" || two == "à" || two == "é" || two == "û") << utf8;
    bytes += isAscii ? std::string(1, utf8[i]) : roman;
    i += isAscii ? 0 : 1;
  }
  return bytes;
}

TEST_F(ResultsSaving, WritesTheUsersLanguageByteByByte) {
  struct Case {
    const char* language;
    const char* locale;
    std::string untilDate;
    std::string sinceDate;
  };
  const Case cases[] = {
      {"en", "en_US", "Listening Test Results\n======================\n\nDate: ",
       "\n\nEncoder: AAC ABR 128 Kbps\nTest Cycles: 3\nResults: 2/3 (67% Correct)\n\n"
       "Test Incomplete. You need to perform at least 10 tests for your results to be "
       "statistically significant."},
      {"de", "de_DE", "Ergebnisse des H\x9Artests\n=======================\n\nDatum: ",
       "\n\nEncoder: AAC ABR 128 kbit/s\nDurchg\x8Ange: 3\nErgebnis: 2/3 (67\xCA% richtig)\n\n"
       "Test unvollst\x8Andig. F\x9Fr ein statistisch signifikantes Ergebnis sind mindestens 10 "
       "Durchg\x8Ange n\x9Atig."},
      {"fr", "fr_FR",
       "R\x8Esultats du test d\xD5\x8E"
       "coute\n==========================\n\nDate\xCA: ",
       "\n\nEncodeur\xCA: AAC ABR 128 kbit/s\nEssais\xCA: 3\n"
       "R\x8Esultats\xCA: 2/3 (67\xCA% de r\x8Eponses justes)\n\n"
       "Test incomplet. Il faut au moins 10 essais pour que vos r\x8Esultats soient "
       "statistiquement significatifs."}};
  for (const Case& test : cases) {
    TestPage page(VELK_RESOURCES, test.language, test.locale);
    const auto now = [&] {
      const auto& localization = *page.view->toolkit.localization;
      return inMacRoman(localization.longDateShortTime(std::chrono::system_clock::now()));
    };
    page.chooseEncoder({0, 0, 10});
    page.answer(false);
    const std::string before = now();
    save(page, 2);
    EXPECT_THAT(content(), testing::AnyOf(test.untilDate + before + test.sinceDate,
                                          test.untilDate + now() + test.sinceDate));
  }
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

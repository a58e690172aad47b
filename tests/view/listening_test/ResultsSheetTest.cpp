#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "view/listening_test/RequiredAnswers.h"
#include "view/listening_test/TestPage.h"

namespace listening_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kIncomplete =
    "Test Incomplete. You need to perform at least 10 tests for your results to be statistically "
    "significant.";
const std::string kPassed =
    "You successfully identified the encoded audio with a 95% confidence rating.";

std::string failed(int required) {
  return "You were not successful in identifying the encoded audio in a statistically significant "
         "manner. You needed " +
         std::to_string(required) + " correct answers to pass this test";
}

std::string score(int correct, int trials) {
  // A share halfway between two percentages rounds to the even one.
  const int percent = static_cast<int>(std::nearbyint(100.0 * correct / trials));
  return std::to_string(correct) + "/" + std::to_string(trials) + " (" + std::to_string(percent) +
         "% Correct)";
}

/// A test of that many answers, which may be more than is possible outside learning mode.
void learn(TestPage& page, int trials, int correct) {
  page.click("learnModeButton");
  page.answerTimes(correct, true);
  page.answerTimes(trials - correct, false);
  page.endTest();
}

TEST(ResultsSheet, ShowsTheAbortedMarkBeforeAnyAnswer) {
  TestPage page;
  page.endTest();
  EXPECT_TRUE(page.isSheetOpen());
  EXPECT_EQ(page.text("cyclesField"), "0");
  EXPECT_EQ(page.text("resultsField"), "0/0- Test aborted");
  EXPECT_EQ(page.text("summaryField"), kIncomplete);
}

TEST(ResultsSheet, NamesTheEncoderAsTheMenuDoes) {
  TestPage page;
  page.chooseEncoder({0, 0, 10});
  page.endTest();
  EXPECT_EQ(page.text("encoderField"), page.view->view().getEncoderName());
  EXPECT_EQ(page.text("encoderField"), "AAC ABR 128 Kbps");
}

TEST(ResultsSheet, ShowsScoreAndVerdictOfEverySizeAndScore) {
  for (int trials = 0; trials <= 25; ++trials) {
    const int required = static_cast<int>(requiredAnswers(static_cast<std::uint32_t>(trials)));
    for (int correct = 0; correct <= trials; ++correct) {
      TestPage page;
      learn(page, trials, correct);
      EXPECT_EQ(page.text("cyclesField"), std::to_string(trials));
      EXPECT_EQ(page.text("resultsField"),
                trials == 0 ? "0/0- Test aborted" : score(correct, trials));
      EXPECT_EQ(page.text("summaryField"),
                trials <= 8 ? kIncomplete : (correct >= required ? kPassed : failed(required)))
          << correct << "/" << trials;
    }
  }
}

TEST(ResultsSheet, WritesNumbersAsTheUsersLanguageDoes) {
  TestPage page(VELK_RESOURCES, "de", "de_DE");
  learn(page, 20, 17);
  EXPECT_EQ(page.text("resultsField"), "17/20 (85\u00A0% richtig)");
  EXPECT_EQ(page.text("cyclesField"), "20");
}

TEST(ResultsSheet, ClosesWithTheOKCodeAndDisappears) {
  TestPage page;
  page.endTest();
  page.record.calls.clear();
  page.confirmResults();
  EXPECT_THAT(page.happened(), ElementsAre("sheets.endSheet listeningTestController.resultsSheet 1",
                                           "sheets.orderOut listeningTestController.resultsSheet"));
  EXPECT_FALSE(page.isSheetOpen());
}

TEST(ResultsSheet, RunsNoSavePanelWhileItsBoxIsOff) {
  TestPage page;
  page.endTest();
  page.confirmResults();
  EXPECT_THAT(page.sheets().savePanels(), IsEmpty());
}

}  // namespace
}  // namespace listening_test

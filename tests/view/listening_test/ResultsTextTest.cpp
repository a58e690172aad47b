#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "ui/Bundle.h"
#include "ui/Localization.h"
#include "ui/TextFile.h"
#include "view/listening_test/RequiredAnswers.h"
#include "view/listening_test/ResultsText.h"
#include "view/listening_test/TestTexts.h"

namespace velk {
namespace {

/// The project's own texts in one language.
class Language {
 public:
  Language(const std::string& code, const std::string& locale)
      : bundle_(VELK_RESOURCES, {code}),
        localization_(ui::makeLocalization(locale)),
        texts_(bundle_, *localization_) {}

  std::string results(const TestResults& results) const { return resultsText(results, texts_); }
  const TestTexts& texts() const { return texts_; }
  const ui::Localization& localization() const { return *localization_; }

  /// The bytes of a file with the results, empty when it could not be written.
  std::string file(const TestResults& testResults) const {
    // Tests of this program may run side by side.
    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) /
                                       ("results-text-" + std::to_string(::getpid()) + ".txt");
    std::filesystem::remove(path);
    if (!ui::writeMacRoman(path, results(testResults))) {
      return {};
    }
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::filesystem::remove(path);
    return bytes;
  }

 private:
  ui::Bundle bundle_;
  std::unique_ptr<ui::Localization> localization_;
  TestTexts texts_;
};

Language english() {
  return {"en", "en_US"};
}

TestResults results(std::uint32_t trials, std::uint32_t correct) {
  return {"November 14, 2023 at 10:13 PM", "AAC VBRC 256 Kbps", trials + 1, correct};
}

const std::string kEnglishHead =
    "Listening Test Results\n"
    "======================\n"
    "\n"
    "Date: November 14, 2023 at 10:13 PM\n"
    "\n"
    "Encoder: AAC VBRC 256 Kbps\n";
const std::string kIncomplete =
    "Test Incomplete. You need to perform at least 10 tests for your results to be statistically "
    "significant.";
const std::string kPassed =
    "You successfully identified the encoded audio with a 95% confidence rating.";

std::string failed(const std::string& required) {
  return "You were not successful in identifying the encoded audio in a statistically significant "
         "manner. You needed " +
         required + " correct answers to pass this test";
}

TEST(ResultsText, TellsAPassedTestLineByLine) {
  EXPECT_EQ(english().results(results(20, 17)), kEnglishHead +
                                                    "Test Cycles: 20\n"
                                                    "Results: 17/20 (85% Correct)\n"
                                                    "\n" +
                                                    kPassed);
}

TEST(ResultsText, TellsAFailedTestWithTheNumberItNeeded) {
  EXPECT_EQ(english().results(results(15, 10)), kEnglishHead +
                                                    "Test Cycles: 15\n"
                                                    "Results: 10/15 (67% Correct)\n"
                                                    "\n" +
                                                    failed("11"));
}

TEST(ResultsText, CallsNineAnswersIncomplete) {
  EXPECT_EQ(english().results(results(9, 9)), kEnglishHead +
                                                  "Test Cycles: 9\n"
                                                  "Results: 9/9 (100% Correct)\n"
                                                  "\n" +
                                                  kIncomplete);
}

TEST(ResultsText, RunsTheAbortedMarkAndTheVerdictTogetherWithoutAnyAnswer) {
  EXPECT_EQ(english().results(results(0, 0)),
            kEnglishHead + "Test Cycles: 0\n0/0- Test aborted" + kIncomplete);
}

TEST(ResultsText, CallsASingleAnswerAbortedWhateverItsScore) {
  const std::string aborted = kEnglishHead + "Test Cycles: 1\n0/0- Test aborted" + kIncomplete;
  EXPECT_EQ(english().results(results(1, 1)), aborted);
  EXPECT_EQ(english().results(results(1, 0)), aborted);
}

TEST(ResultsText, JudgesTwoAnswersByTheirScore) {
  EXPECT_EQ(english().results(results(2, 0)), kEnglishHead +
                                                  "Test Cycles: 2\n"
                                                  "Results: 0/2 (0% Correct)\n"
                                                  "\n" +
                                                  kIncomplete);
}

TEST(ResultsText, EndsInTheVerdictOfEveryTrialSizeAndScore) {
  const Language language = english();
  for (std::uint32_t trials = 0; trials <= 25; ++trials) {
    for (std::uint32_t correct = 0; correct <= trials; ++correct) {
      const std::string text = language.results(results(trials, correct));
      std::string verdict = kIncomplete;
      if (trials >= 10) {
        const auto required = listening_test::requiredAnswers(trials);
        verdict = correct >= required ? kPassed : failed(std::to_string(required));
      }
      EXPECT_TRUE(text.ends_with((trials <= 1 ? "aborted" : "\n\n") + verdict))
          << correct << "/" << trials << ": " << text;
    }
  }
}

TEST(ResultsText, WritesCountsWithoutGrouping) {
  EXPECT_NE(english().results(results(1234, 617)).find("Results: 617/1234 (50% Correct)"),
            std::string::npos);
}

TEST(ResultsText, KeepsAPercentSignAndPlaceholdersOfAnEncoderNameAsTheyAre) {
  TestResults named = results(2, 1);
  named.encoderName = "100% %@ %1$@";
  EXPECT_NE(english().results(named).find("Encoder: 100% %@ %1$@\nTest Cycles: 2\n"),
            std::string::npos);
}

TEST(ResultsFile, HoldsTheEnglishTextByteByByte) {
  EXPECT_EQ(english().file(results(20, 14)), kEnglishHead +
                                                 "Test Cycles: 20\n"
                                                 "Results: 14/20 (70% Correct)\n"
                                                 "\n" +
                                                 kPassed);
}

TEST(ResultsFile, HoldsTheGermanTextInMacOSRoman) {
  const Language german("de", "de_DE");
  TestResults test = results(12, 8);
  test.date = "14. November 2023 um 22:13";
  test.encoderName = "AAC HEv2 VBR Qualität: 3";
  EXPECT_EQ(
      german.file(test),
      "Ergebnisse des H\x9Artests\n"
      "=======================\n"
      "\n"
      "Datum: 14. November 2023 um 22:13\n"
      "\n"
      "Encoder: AAC HEv2 VBR Qualit\x8At: 3\n"
      "Durchg\x8Ange: 12\n"
      "Ergebnis: 8/12 (67\xCA% richtig)\n"
      "\n"
      "Sie haben das codierte Audiosignal nicht statistisch signifikant erkannt. Zum Bestehen "
      "dieses Tests waren 9 richtige Antworten n\x9Atig");
  EXPECT_EQ(german.file({"1. M\u00E4rz 2024 um 09:05", "AAC", 1, 0}),
            "Ergebnisse des H\x9Artests\n"
            "=======================\n"
            "\n"
            "Datum: 1. M\x8Arz 2024 um 09:05\n"
            "\n"
            "Encoder: AAC\n"
            "Durchg\x8Ange: 0\n"
            "0/0 \xD0 Test abgebrochenTest unvollst\x8Andig. F\x9Fr ein statistisch signifikantes "
            "Ergebnis sind mindestens 10 Durchg\x8Ange n\x9Atig.");
}

TEST(ResultsFile, HoldsTheFrenchTextInMacOSRoman) {
  const Language french("fr", "fr_FR");
  EXPECT_EQ(french.file({"14 novembre 2023 à 22:13", "AAC ABR 128 kbit/s", 11, 8}),
            "R\x8Esultats du test d\xD5\x8E"
            "coute\n"
            "==========================\n"
            "\n"
            "Date\xCA: 14 novembre 2023 \x88 22:13\n"
            "\n"
            "Encodeur\xCA: AAC ABR 128 kbit/s\n"
            "Essais\xCA: 10\n"
            "R\x8Esultats\xCA: 8/10 (80\xCA% de r\x8Eponses justes)\n"
            "\n"
            "Vous avez identifi\x8E le signal encod\x8E avec un niveau de confiance de 95\xCA%.");
}

TEST(ResultsFile, CanBeWrittenInEveryLanguageOnEveryMonthOfTheYear) {
  for (const auto& [code, locale] : {std::pair("en", "en_US"), {"de", "de_DE"}, {"fr", "fr_FR"}}) {
    const Language language(code, locale);
    for (int month = 0; month < 12; ++month) {
      const auto moment = std::chrono::sys_days(std::chrono::year(2024) / 1 / 15) +
                          std::chrono::hours(24 * 30 * month + 13);
      const std::string date = language.localization().longDateShortTime(moment);
      for (const std::uint32_t trials : {0U, 1U, 5U, 12U}) {
        for (const std::uint32_t correct : {0U, trials}) {
          EXPECT_NE(language.file({date, "AAC", trials + 1, correct}), "")
              << code << ", " << date << ", " << correct << "/" << trials;
        }
      }
    }
  }
}

TEST(ResultsFile, HoldsAnEncoderNameThatMacOSRomanCanWrite) {
  TestResults named = results(2, 1);
  named.encoderName = "AAC Ω ∞ “ß”";
  EXPECT_NE(english().file(named).find("Encoder: AAC \xBD \xB0 \xD2\xA7\xD3\n"), std::string::npos);
}

TEST(ResultsFile, IsNotWrittenForAnEncoderNameThatMacOSRomanLacks) {
  for (const char* name : {"AAC Ж", "AAC 音", "AAC \U0001F3A7"}) {
    TestResults named = results(2, 1);
    named.encoderName = name;
    EXPECT_EQ(english().file(named), "") << name;
  }
}

}  // namespace
}  // namespace velk

#include <gtest/gtest.h>

#include <cstdint>

#include "view/listening_test/RequiredAnswers.h"
#include "view/listening_test/Verdict.h"

namespace velk {
namespace {

constexpr std::uint32_t kMostTrials = 25;

TEST(SheetVerdict, CallsUpToEightTrialsIncompleteWhateverTheScore) {
  for (std::uint32_t trials = 0; trials <= 8; ++trials) {
    for (std::uint32_t correct = 0; correct <= trials; ++correct) {
      EXPECT_EQ(sheetVerdict(trials, correct), Verdict::Incomplete) << correct << "/" << trials;
    }
  }
}

TEST(SheetVerdict, FailsNineTrialsEvenWhenAllAreCorrect) {
  for (std::uint32_t correct = 0; correct <= 9; ++correct) {
    EXPECT_EQ(sheetVerdict(9, correct), Verdict::Failed) << correct;
  }
}

TEST(FileVerdict, CallsUpToNineTrialsIncompleteWhateverTheScore) {
  for (std::uint32_t trials = 0; trials <= 9; ++trials) {
    for (std::uint32_t correct = 0; correct <= trials; ++correct) {
      EXPECT_EQ(fileVerdict(trials, correct), Verdict::Incomplete) << correct << "/" << trials;
    }
  }
}

TEST(Verdict, IsThatOfTheTableOnSheetAndInFileFromTenTrialsOn) {
  for (std::uint32_t trials = 10; trials <= kMostTrials; ++trials) {
    for (std::uint32_t correct = 0; correct <= trials; ++correct) {
      const bool passes = correct >= listening_test::requiredAnswers(trials);
      const Verdict expected = passes ? Verdict::Passed : Verdict::Failed;
      EXPECT_EQ(sheetVerdict(trials, correct), expected) << correct << "/" << trials;
      EXPECT_EQ(fileVerdict(trials, correct), expected) << correct << "/" << trials;
    }
  }
}

}  // namespace
}  // namespace velk

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>

#include "view/listening_test/PassThreshold.h"

namespace velk {
namespace {

TEST(PassThreshold, AsksForTheListedNumberOfEachTrialSizeFromTenToTwenty) {
  const std::map<std::uint32_t, std::uint32_t> listed = {{10, 8},  {11, 8},  {12, 9},  {13, 9},
                                                         {14, 10}, {15, 11}, {16, 11}, {17, 12},
                                                         {18, 12}, {19, 13}, {20, 14}};
  for (const auto& [size, required] : listed) {
    EXPECT_EQ(requiredCorrectAnswers(size), required) << "of " << size;
  }
}

TEST(PassThreshold, AsksForFourteenOfEverySizeBelowTen) {
  for (std::uint32_t size = 0; size < 10; ++size) {
    EXPECT_EQ(requiredCorrectAnswers(size), 14U) << "of " << size;
  }
}

TEST(PassThreshold, AsksForFourteenOfEverySizeAboveTwenty) {
  for (std::uint32_t size = 21; size < 100; ++size) {
    EXPECT_EQ(requiredCorrectAnswers(size), 14U) << "of " << size;
  }
  EXPECT_EQ(requiredCorrectAnswers(std::numeric_limits<std::uint32_t>::max()), 14U);
}

/// How likely a guesser is to pass who has so many answers, so many of them right.
double guessersChance(std::uint32_t answers, std::uint32_t correct) {
  if (answers >= 10 && correct >= requiredCorrectAnswers(answers)) return 1;
  if (answers == 20) return 0;
  return (guessersChance(answers + 1, correct) + guessersChance(answers + 1, correct + 1)) / 2;
}

TEST(PassThreshold, LetsNineteenOfAHundredGuessersPassAsTheHelpPageSays) {
  EXPECT_NEAR(guessersChance(0, 0), 0.190, 0.0005);
}

}  // namespace
}  // namespace velk

#include <gmock/gmock.h>

#include <random>
#include <set>

#include "programs/measure/TrimSearch.h"

using host::measure::kGreatestTrim;
using host::measure::kRefutedSteps;
using host::measure::smallestCleanTrim;

namespace {

/// An encoder of which it is known what is clean, and which notes what it was asked.
struct Encoder {
  std::function<bool(int)> isClean;
  std::multiset<int> tried;

  std::optional<int> search(int guess) {
    return smallestCleanTrim(guess, [this](int tenths) {
      tried.insert(tenths);
      return isClean(tenths);
    });
  }
};

TEST(TrimSearch, FindsTheEdgeFromAnyGuess) {
  for (const int edge : {1, 2, 3, 4, 5, 17, 64, 250, kGreatestTrim}) {
    for (const int guess : {0, 1, 2, 5, 10, 60, 200, kGreatestTrim, 10000}) {
      Encoder encoder{[=](int tenths) { return tenths >= edge; }, {}};
      EXPECT_EQ(encoder.search(guess), edge) << guess;
    }
  }
}

TEST(TrimSearch, TriesTheAnswerAndTheStepsAboveItOnce) {
  Encoder encoder{[](int tenths) { return tenths >= 12; }, {}};
  EXPECT_EQ(encoder.search(13), 12);
  for (const int tenths : {9, 10, 11, 12}) EXPECT_EQ(encoder.tried.count(tenths), 1U) << tenths;
  for (const int tenths : encoder.tried) EXPECT_EQ(encoder.tried.count(tenths), 1U) << tenths;
}

TEST(TrimSearch, NeedsFewTriesWhereTheGuessIsNear) {
  for (const int guess : {10, 11, 12, 13, 14}) {
    Encoder encoder{[](int tenths) { return tenths >= 12; }, {}};
    EXPECT_EQ(encoder.search(guess), 12);
    EXPECT_LE(encoder.tried.size(), 7U) << guess;
  }
}

TEST(TrimSearch, NeverTriesTheFileAsItIs) {
  Encoder encoder{[](int tenths) { return tenths >= 1; }, {}};
  EXPECT_EQ(encoder.search(3), 1);
  EXPECT_EQ(encoder.tried.count(0), 0U);
}

TEST(TrimSearch, TakesASmallerReductionThatHappensToBeClean) {
  Encoder encoder{[](int tenths) { return tenths >= 12 || tenths == 10; }, {}};
  EXPECT_EQ(encoder.search(12), 10);
}

TEST(TrimSearch, KeepsItsPromiseWhereCleanAndUncleanMingle) {
  std::mt19937 random(1);
  for (int turn = 0; turn < 2000; ++turn) {
    std::vector<bool> clean(kGreatestTrim + 1);
    const int edge = 1 + static_cast<int>(random() % 60);
    for (int i = 1; i <= kGreatestTrim; ++i) {
      const int distance = i - edge;
      clean[static_cast<std::size_t>(i)] =
          distance > 8 || (distance > -8 && random() % 16 < static_cast<unsigned>(distance + 8));
    }
    Encoder encoder{[&](int tenths) { return clean[static_cast<std::size_t>(tenths)]; }, {}};
    const auto answer = encoder.search(static_cast<int>(random() % 80));
    ASSERT_TRUE(answer);
    EXPECT_TRUE(clean[static_cast<std::size_t>(*answer)]);
    EXPECT_EQ(encoder.tried.count(*answer), 1U);
    for (int above = 1; above <= kRefutedSteps && *answer - above > 0; ++above) {
      EXPECT_FALSE(clean[static_cast<std::size_t>(*answer - above)]);
      EXPECT_EQ(encoder.tried.count(*answer - above), 1U);
    }
  }
}

TEST(TrimSearch, TakesTheAnswerLastOfAllThatAreClean) {
  std::mt19937 random(2);
  for (int turn = 0; turn < 500; ++turn) {
    std::vector<bool> clean(kGreatestTrim + 1);
    for (std::size_t i = 1; i < clean.size(); ++i) clean[i] = i > 70 || random() % 3 == 0;
    int last = 0;
    const auto answer = smallestCleanTrim(static_cast<int>(random() % 80), [&](int tenths) {
      if (clean[static_cast<std::size_t>(tenths)]) last = tenths;
      return clean[static_cast<std::size_t>(tenths)];
    });
    EXPECT_EQ(answer, last);
  }
}

TEST(TrimSearch, GivesUpWhereNothingIsClean) {
  Encoder encoder{[](int) { return false; }, {}};
  EXPECT_EQ(encoder.search(5), std::nullopt);
  EXPECT_EQ(encoder.tried.count(kGreatestTrim), 1U);
  EXPECT_LT(encoder.tried.size(), 20U);
}

}  // namespace

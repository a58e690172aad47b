#include <gtest/gtest.h>

#include "programs/audition/window/PassingNotice.h"

namespace {

using host::audition::PassingNotice;
using std::chrono::milliseconds;

const PassingNotice::Clock::time_point kStart{std::chrono::hours(1)};

TEST(PassingNotice, IsEmptyAtFirst) {
  EXPECT_EQ(PassingNotice().shownAt(kStart), "");
}

TEST(PassingNotice, GoesWhenWhatItTellsOfHasPassed) {
  PassingNotice notice;
  notice.tell("late", kStart);
  EXPECT_EQ(notice.shownAt(kStart), "late");
  EXPECT_EQ(notice.shownAt(kStart + milliseconds(2999)), "late");
  EXPECT_EQ(notice.shownAt(kStart + milliseconds(3000)), "");
}

TEST(PassingNotice, StaysWhileItHappensAgain) {
  PassingNotice notice;
  for (int second = 0; second < 10; ++second) {
    notice.tell("late", kStart + std::chrono::seconds(second));
  }
  EXPECT_EQ(notice.shownAt(kStart + std::chrono::seconds(11)), "late");
  EXPECT_EQ(notice.shownAt(kStart + std::chrono::seconds(12)), "");
}

}  // namespace

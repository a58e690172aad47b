#include <gtest/gtest.h>

#include <chrono>

#include "converter/stream/Lead.h"

namespace {

using std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

/// Asks for blocks of 480 frames at 48 kHz, 10 ms each, at times that the test decides.
class Lead : public testing::Test {
 protected:
  void pass(double seconds) {
    now_ += std::chrono::duration_cast<steady_clock::duration>(Seconds(seconds));
  }
  /// How long the request may wait, in seconds.
  double ask(UInt32 frames = 480) { return Seconds(lead_.take(frames)).count(); }

  steady_clock::time_point now_{std::chrono::hours(1000)};
  converter::Lead lead_{48000, [this] { return now_; }};
};

TEST_F(Lead, IsNothingInStrictRealTime) {
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(ask(), 0);
    pass(0.01);
  }
}

TEST_F(Lead, IsNothingForACallerWhoIsAlwaysABitLate) {
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(ask(), 0);
    pass(i % 10 == 9 ? 0.012 : 0.01);
  }
}

TEST_F(Lead, IsNotSpentWhereItMayBeJitter) {
  EXPECT_EQ(ask(), 0);
  EXPECT_EQ(ask(), 0);
  pass(0.0001);
  EXPECT_EQ(ask(), 0);
}

TEST_F(Lead, MayBeSpentByHalfOnceItIsTwentyMilliseconds) {
  ask();
  ask();
  EXPECT_NEAR(ask(), 0.01, 1e-6);
  EXPECT_NEAR(ask(), 0.015, 1e-6);
}

TEST_F(Lead, IsHalfASecondAtMost) {
  for (int i = 0; i < 200; ++i) ask();
  EXPECT_NEAR(ask(), 0.25, 1e-6);
}

TEST_F(Lead, IsUsedUpByThePassingOfTime) {
  for (int i = 0; i < 10; ++i) ask();
  pass(0.06);
  EXPECT_NEAR(ask(), 0.02, 0.0001);
  pass(0.05);
  EXPECT_EQ(ask(), 0);
}

TEST_F(Lead, StartsAnewAfterAPause) {
  for (int i = 0; i < 10; ++i) ask();
  pass(60);
  EXPECT_EQ(ask(), 0);
  EXPECT_EQ(ask(), 0);
  EXPECT_GT(ask(), 0);
}

TEST_F(Lead, StartsAnewWhenItIsCleared) {
  for (int i = 0; i < 10; ++i) ask();
  lead_.clear();
  EXPECT_EQ(ask(), 0);
}

TEST_F(Lead, OfADeviceWhoseClockRunsFastDoesNotGrow) {
  // A hundred parts per million for an hour.
  for (int i = 0; i < 360000; ++i) {
    ASSERT_EQ(ask(), 0) << i;
    pass(0.01 * (1 - 1e-4));
  }
}

}  // namespace

#include <gtest/gtest.h>

#include "host/messages/ClockText.h"

using host::clockText;

namespace {

TEST(ClockText, HasHoursOnlyWhereTheyAreNeeded) {
  EXPECT_EQ(clockText(0, 0), "0:00");
  EXPECT_EQ(clockText(61'000, 0), "1:01");
  EXPECT_EQ(clockText(3'599'000, 0), "59:59");
  EXPECT_EQ(clockText(3'765'000, 0), "1:02:45");
  EXPECT_EQ(clockText(360'000'000, 0), "100:00:00");
}

TEST(ClockText, CutsOffWhatItHasNoDigitsFor) {
  EXPECT_EQ(clockText(59'999, 0), "0:59");
  EXPECT_EQ(clockText(1'987, 1), "0:01.9");
  EXPECT_EQ(clockText(1'057, 2), "0:01.05");
  EXPECT_EQ(clockText(1'007, 3), "0:01.007");
}

TEST(ClockText, HasAnyDecimalPoint) {
  EXPECT_EQ(clockText(1'500, 3, ","), "0:01,500");
  EXPECT_EQ(clockText(1'500, 1, "\u066B"), "0:01\u066B5");
}

}  // namespace

#include <gtest/gtest.h>

#include "programs/audition/waveform/TimeText.h"

using host::audition::timeText;

namespace {

QString american(std::int64_t frames, std::uint32_t rate) {
  return timeText(frames, rate, QLocale("en_US"));
}

TEST(TimeText, HasHoursOnlyWhereTheyAreNeeded) {
  EXPECT_EQ(american(0, 1000), "0:00.000");
  EXPECT_EQ(american(999, 1000), "0:00.999");
  EXPECT_EQ(american(61000, 1000), "1:01.000");
  EXPECT_EQ(american(3599999, 1000), "59:59.999");
  EXPECT_EQ(american(3600000 + 2 * 60000 + 45007, 1000), "1:02:45.007");
}

TEST(TimeText, CutsOffWhatIsLessThanAMillisecond) {
  EXPECT_EQ(american(44099, 44100), "0:00.999");
  EXPECT_EQ(american(44100, 44100), "0:01.000");
}

TEST(TimeText, HasTheLocalesDecimalSign) {
  EXPECT_EQ(timeText(1500, 1000, QLocale("de_DE")), "0:01,500");
  EXPECT_EQ(timeText(1500, 1000, QLocale("fr_FR")), "0:01,500");
}

TEST(TimeText, HasAMinusSignBeforeTimeThatIsLeft) {
  EXPECT_EQ(american(-1500, 1000), QString::fromUtf8("\u22120:01.500"));
}

TEST(TimeText, IsThereWithoutAFile) {
  EXPECT_EQ(american(0, 0), "0:00.000");
}

}  // namespace

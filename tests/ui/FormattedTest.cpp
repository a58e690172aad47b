#include <gtest/gtest.h>

#include "ui/Bundle.h"

namespace {

using ui::formatted;

TEST(Formatted, FillsPlaceholdersInTurn) {
  EXPECT_EQ(formatted("%@/%@ (%@ Correct)", {"17", "20", "85%"}), "17/20 (85% Correct)");
}

TEST(Formatted, FillsPlaceholdersByPlace) {
  EXPECT_EQ(formatted("%2$@ von %1$@", {"a", "b"}), "b von a");
  EXPECT_EQ(formatted("%1$@%1$@", {"a"}), "aa");
  EXPECT_EQ(formatted("%12$@", std::vector<std::string>(12, "x")), "x");
}

TEST(Formatted, CountsOnlyPlaceholdersWithoutAPlace) {
  EXPECT_EQ(formatted("%2$@ %@ %@", {"a", "b"}), "b a b");
}

TEST(Formatted, LeavesAPlaceholderWithoutAnArgument) {
  EXPECT_EQ(formatted("%@ %@", {"a"}), "a %@");
  EXPECT_EQ(formatted("%3$@ %0$@ %99999999999999999999$@", {"a"}),
            "%3$@ %0$@ %99999999999999999999$@");
}

TEST(Formatted, GivesAPercentSignForTwo) {
  EXPECT_EQ(formatted("100%% %@", {"a"}), "100% a");
  EXPECT_EQ(formatted("%%@", {"a"}), "%@");
}

TEST(Formatted, LeavesAnyOtherPercentSign) {
  EXPECT_EQ(formatted("a 95% confidence", {"x"}), "a 95% confidence");
  EXPECT_EQ(formatted("%d %1@ %1$ %$@ %", {"x"}), "%d %1@ %1$ %$@ %");
}

TEST(Formatted, NeverLooksIntoItsArguments) {
  EXPECT_EQ(formatted("%@ %@", {"%@", "%1$@"}), "%@ %1$@");
}

TEST(Formatted, IsEmptyForAnEmptyFormat) {
  EXPECT_EQ(formatted("", {"a"}), "");
}

}  // namespace

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>

#include "programs/measure/Console.h"

using host::measure::Console;

namespace {

/// What the console takes for its width while standard output goes to `descriptor`.
std::size_t widthAt(int descriptor, const char* variable) {
  // Nothing that is being tested gets there.
  const int output = ::dup(STDOUT_FILENO);
  ::dup2(descriptor, STDOUT_FILENO);
  ::setenv("COLUMNS", variable, 1);
  const auto width = Console::outputWidth();
  ::unsetenv("COLUMNS");
  ::dup2(output, STDOUT_FILENO);
  ::close(output);
  return width;
}

std::size_t widthAtTerminal(int columns, const char* variable) {
  const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
  ::grantpt(terminal);
  ::unlockpt(terminal);
  const int line = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
  winsize size{};
  size.ws_col = static_cast<unsigned short>(columns);
  ::ioctl(line, TIOCSWINSZ, &size);
  const auto width = widthAt(line, variable);
  ::close(line);
  ::close(terminal);
  return width;
}

TEST(Console, IsAsWideAsItsTerminalSays) {
  for (const int columns : {80, 100, 211}) {
    EXPECT_EQ(widthAtTerminal(columns, "40"), static_cast<std::size_t>(columns));
  }
}

TEST(Console, TakesTheUsersWordWhereTheTerminalHasNone) {
  EXPECT_EQ(widthAtTerminal(0, "100"), 100U);
}

TEST(Console, IsAsWideAsMostWhereNobodyTells) {
  for (const char* const nonsense : {"", "wide", "0", "-3"}) {
    EXPECT_EQ(widthAtTerminal(0, nonsense), 80U) << nonsense;
  }
}

TEST(Console, HasNoWidthWhereThereIsNoTerminal) {
  const int nowhere = ::open("/dev/null", O_WRONLY);
  EXPECT_EQ(widthAt(nowhere, "40"), 0U);
  ::close(nowhere);
}

}  // namespace

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <thread>

#include "host/messages/Terminal.h"

using host::Terminal;

namespace {

/// What the console takes for its width while standard output goes to `descriptor`.
std::size_t widthAt(int descriptor, const char* variable) {
  // Nothing that is being tested gets there.
  const int output = ::dup(STDOUT_FILENO);
  ::dup2(descriptor, STDOUT_FILENO);
  ::setenv("COLUMNS", variable, 1);
  const auto width = Terminal::outputWidth();
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

/// What a terminal of a program called "program" writes to standard error.
std::string complained(const std::function<void(Terminal&)>& work) {
  testing::internal::CaptureStderr();
  Terminal terminal("program");
  work(terminal);
  return testing::internal::GetCapturedStderr();
}

TEST(Terminal, ComplainsInOneLineAfterTheProgramsName) {
  EXPECT_EQ(complained([](Terminal& terminal) { terminal.complain("no such file"); }),
            "program: no such file\n");
  EXPECT_EQ(complained([](Terminal& terminal) { terminal.warn("cut off"); }),
            "program: warning: cut off\n");
}

TEST(Terminal, LetsNoTextBreakTheLineOrMoveTheCursor) {
  EXPECT_EQ(complained([](Terminal& terminal) { terminal.complain("'a\nb\x1b[2J\r\xff.wav'"); }),
            "program: 'a b?[2J??.wav'\n");
}

TEST(Terminal, SaysWhatItIsGiven) {
  testing::internal::CaptureStdout();
  Terminal("program").say("{\"file\":\"mix.wav\"}\n");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "{\"file\":\"mix.wav\"}\n");
}

TEST(Terminal, ShowsNoProgressWhereThereIsNoTerminal) {
  EXPECT_EQ(complained([](Terminal& terminal) {
              EXPECT_FALSE(terminal.showsProgress());
              terminal.setProgress("half");
              terminal.complain("no such file");
            }),
            "program: no such file\n");
}

TEST(Terminal, KeepsLinesWholeThatSeveralThreadsWrite) {
  constexpr int lines = 500;
  const auto text = complained([](Terminal& terminal) {
    const auto complain = [&] {
      for (int i = 0; i < lines; ++i) terminal.complain("a line");
    };
    std::thread other(complain);
    complain();
    other.join();
  });
  std::string expected;
  for (int i = 0; i < 2 * lines; ++i) expected += "program: a line\n";
  EXPECT_EQ(text, expected);
}

TEST(Terminal, IsAsWideAsItsTerminalSays) {
  for (const int columns : {80, 100, 211}) {
    EXPECT_EQ(widthAtTerminal(columns, "40"), static_cast<std::size_t>(columns));
  }
}

TEST(Terminal, TakesTheUsersWordWhereTheTerminalHasNone) {
  EXPECT_EQ(widthAtTerminal(0, "100"), 100U);
}

TEST(Terminal, IsAsWideAsMostWhereNobodyTells) {
  for (const char* const nonsense : {"", "wide", "0", "-3"}) {
    EXPECT_EQ(widthAtTerminal(0, nonsense), 80U) << nonsense;
  }
}

TEST(Terminal, HasNoWidthWhereThereIsNoTerminal) {
  const int nowhere = ::open("/dev/null", O_WRONLY);
  EXPECT_EQ(widthAt(nowhere, "40"), 0U);
  ::close(nowhere);
}

}  // namespace

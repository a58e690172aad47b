#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "ui/Log.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

class LogTest : public testing::Test {
 public:
  ~LogTest() override { ui::setLogSink(earlier_); }

 protected:
  LogTest()
      : earlier_(ui::setLogSink([this](std::string_view line) { lines.emplace_back(line); })) {}

  std::vector<std::string> lines;

 private:
  ui::LogSink earlier_;
};

TEST_F(LogTest, GoesToTheSink) {
  ui::log("one");
  ui::log("two");
  EXPECT_THAT(lines, ElementsAre("one", "two"));
}

TEST_F(LogTest, GoesToTheNewestSinkOnly) {
  std::vector<std::string> others;
  const ui::LogSink earlier =
      ui::setLogSink([&others](std::string_view line) { others.emplace_back(line); });
  ui::log("one");
  ui::setLogSink(earlier);
  ui::log("two");
  EXPECT_THAT(others, ElementsAre("one"));
  EXPECT_THAT(lines, ElementsAre("two"));
}

TEST_F(LogTest, GoesToStandardErrorWithDateAndTimeWhenNoSinkIsSet) {
  const ui::LogSink earlier = ui::setLogSink({});
  testing::internal::CaptureStderr();
  ui::log("error getting peak stats: -50");
  const std::string text = testing::internal::GetCapturedStderr();
  EXPECT_FALSE(ui::setLogSink(earlier)) << "the default is an empty function";
  EXPECT_THAT(text, MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3} "
                                 "error getting peak stats: -50\n"));
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LogTest, TakesLinesOfManyThreadsOneByOne) {
  constexpr int threadCount = 4;
  constexpr int lineCount = 250;
  std::vector<std::thread> threads;
  threads.reserve(threadCount);
  for (int thread = 0; thread < threadCount; ++thread) {
    threads.emplace_back([thread] {
      for (int line = 0; line < lineCount; ++line) {
        ui::log(std::to_string(thread) + ":" + std::to_string(line));
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_THAT(lines, SizeIs(threadCount * lineCount));
  EXPECT_THAT(lines, AllOf(Contains("0:0"), Contains("3:249")));
}

TEST_F(LogTest, HasLeftASinkForGoodWhenThatIsReplaced) {
  std::thread writer([] {
    for (int line = 0; line < 2000; ++line) {
      ui::log("line");
    }
  });
  for (int round = 0; round < 200; ++round) {
    std::atomic<bool> isInside = false;
    ui::setLogSink([&isInside](std::string_view) {
      isInside = true;
      std::this_thread::yield();
      isInside = false;
    });
    std::this_thread::yield();
    ui::setLogSink([](std::string_view) {});
    EXPECT_FALSE(isInside);
  }
  writer.join();
}

TEST_F(LogTest, LetsASinkLogAndReplaceItself) {
  ui::setLogSink([this](std::string_view line) {
    const std::string text(line);
    ui::setLogSink(
        [this](std::string_view other) { lines.push_back("new " + std::string(other)); });
    ui::log("inner");
    lines.push_back("old " + text);
  });
  ui::log("outer");
  EXPECT_THAT(lines, ElementsAre("new inner", "old outer"));
}

TEST_F(LogTest, TellsOfAnExceptionThatGuardedWorkThrows) {
  ui::runGuarded([] { throw std::runtime_error("no such item"); });
  EXPECT_THAT(lines, ElementsAre(HasSubstr("no such item")));
}

TEST_F(LogTest, TellsOfAnythingElseThatGuardedWorkThrows) {
  ui::runGuarded([] { throw 5; });
  ui::runGuarded({});
  EXPECT_THAT(lines, SizeIs(2));
}

TEST_F(LogTest, IsSilentWhenGuardedWorkSucceeds) {
  bool isDone = false;
  ui::runGuarded([&isDone] { isDone = true; });
  EXPECT_TRUE(isDone);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LogTest, ThatThrowsItselfIsStoppedByTheGuard) {
  int calls = 0;
  const ui::LogSink earlier = ui::setLogSink([&calls](std::string_view) {
    ++calls;
    throw std::runtime_error("disk full");
  });
  ui::runGuarded([] { throw std::runtime_error("no such item"); });
  ui::setLogSink(earlier);
  EXPECT_EQ(calls, 1);
}

}  // namespace

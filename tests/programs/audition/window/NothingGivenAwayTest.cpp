#include <gmock/gmock.h>

#include <QMessageBox>
#include <QPushButton>
#include <string>
#include <utility>
#include <vector>

#include "ListeningRoom.h"
#include "Sound.h"
#include "WhatIsToBeSeen.h"
#include "skins/qt/Mouse.h"
#include "ui/Log.h"
#include "ui/TemporaryFolder.h"
#include "view/listening_test/Draws.h"

namespace {

/// The log's lines.
class LogReader {
 public:
  LogReader() : earlier_(ui::setLogSink([this](auto line) { lines_.emplace_back(line); })) {}
  LogReader(const LogReader&) = delete;
  LogReader& operator=(const LogReader&) = delete;
  ~LogReader() { ui::setLogSink(std::move(earlier_)); }

  const std::vector<std::string>& lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
  ui::LogSink earlier_;
};

struct Sight {
  std::string after;
  bool playsSource;
  WhatIsToBeSeen seen;
};

/// What could be observed during a test.
struct Account {
  std::vector<Sight> sights;
  std::vector<std::string> logged;
  std::string standardError;
};

/// A test in which A is the source in every cycle, or in none; all else is identical.
class Visit {
 public:
  Visit(const std::filesystem::path& file, bool aIsSource) : room_(file), aIsSource_(aIsSource) {}

  Account account() {
    testing::internal::CaptureStderr();
    setUpTest();
    // Until the test runs, the bit rate depends on how far the encoder's thread has got.
    except_ = &room_.audition().window().status();
    listenToAll("before the test runs");
    answer();
    except_ = nullptr;
    look("the first answer");
    listenToAll("while the test runs");
    answer();
    listenToAll("in the third cycle");
    refuseTab();
    room_.click("learnModeButton");
    listenToAll("in learning mode");
    account_.logged = log_.lines();
    account_.standardError = testing::internal::GetCapturedStderr();
    return std::move(account_);
  }

 private:
  void setUpTest() {
    room_.showTestPage();
    room_.click("sourceButton");
    nextDraw();
    room_.click("endTestButton");
    room_.click("resultsOKButton");
    room_.settle();
  }
  void nextDraw() const { listening_test::nextDrawMakesASource(aIsSource_); }
  void answer() {
    nextDraw();
    room_.click("aIsSourceButton");
    room_.listen(2000);
  }
  void listenToAll(const std::string& when) {
    room_.click("aButton");
    look("A " + when);
    room_.listen(15000);
    look("a while of A " + when);
    room_.press(Qt::Key_B);
    look("B " + when);
    room_.listen(15000);
    look("a while of B " + when);
    room_.click("sourceButton");
    room_.listen(2000);
    look("the source " + when);
    room_.click("aButton");
    room_.listen(2000);
  }
  void refuseTab() {
    room_.clickTab(0);
    look("a tab that is refused");
    auto* const alert = room_.window().findChild<QMessageBox*>();
    ASSERT_NE(alert, nullptr);
    qt_test::clickOn(*alert->defaultButton());
    look("resuming");
  }
  void look(const std::string& after) {
    room_.settle();
    account_.sights.push_back({after, room_.monitorsSource(), whatIsToBeSeen(except_)});
  }

  LogReader log_;
  ListeningRoom room_;
  const bool aIsSource_;
  const QWidget* except_ = nullptr;
  Account account_;
};

TEST(NothingIsGivenAway, BetweenATestInWhichAIsTheSourceAndOneInWhichItIsNot) {
  const TemporaryFolder folder;
  // Loud, so that encoding causes overs that meters and lamps would show.
  writeSound(folder / "mix.wav", noise(44100, 2, 400000, 1.0F));
  const auto one = Visit(folder / "mix.wav", true).account();
  const auto other = Visit(folder / "mix.wav", false).account();
  ASSERT_EQ(one.sights.size(), other.sights.size());
  int differentlyPlayed = 0;
  for (std::size_t i = 0; i < one.sights.size(); ++i) {
    const auto& here = one.sights[i];
    const auto& there = other.sights[i];
    EXPECT_GT(here.seen.lines.size(), 1000U);
    EXPECT_TRUE(here.seen == there.seen)
        << "after " << here.after << ": " << differencesBetween(here.seen, there.seen);
    differentlyPlayed += here.playsSource != there.playsSource ? 1 : 0;
  }
  EXPECT_GE(differentlyPlayed, 16);
  EXPECT_EQ(one.logged, other.logged);
  EXPECT_EQ(one.standardError, other.standardError);
}

TEST(NothingIsGivenAway, WhichTheSameLookWouldFindOnTheAuditionPage) {
  const TemporaryFolder folder;
  writeSound(folder / "mix.wav", noise(44100, 2, 100000));
  ListeningRoom room(folder / "mix.wav");
  room.click("monitorSourceSegment");
  room.settle();
  const auto source = whatIsToBeSeen();
  room.click("monitorEncodedSegment");
  room.settle();
  const auto encoded = whatIsToBeSeen();
  EXPECT_NE(source.lines, encoded.lines);
  EXPECT_NE(source.pictures, encoded.pictures);
}

}  // namespace

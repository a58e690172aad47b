#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <chrono>
#include <memory>
#include <string>

#include "skins/qt/Host.h"
#include "skins/qt/XServer.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/NotificationRecorder.h"

/// Physical keys, pressed under several keyboard layouts.
namespace {

using namespace std::chrono_literals;

/// In milliseconds. Long enough for a key press to arrive on any machine.
constexpr int kDeadline = 30'000;

// Keys, by their numbers in Linux's input-event-codes.
constexpr unsigned kDigit1 = 2;
constexpr unsigned kDigit2 = 3;
constexpr unsigned kBackspace = 14;
constexpr unsigned kTab = 15;
constexpr unsigned kQ = 16;
constexpr unsigned kA = 30;
constexpr unsigned kS = 31;
constexpr unsigned kY = 21;
constexpr unsigned kB = 48;
constexpr unsigned kNumLock = 69;
constexpr unsigned kKeypad1 = 79;
constexpr unsigned kKeypad2 = 80;
constexpr unsigned kForwardDelete = 111;

std::unique_ptr<qt_test::XServer> server;

/// Provides an application object on an X server of its own.
class ApplicationOnX final : public testing::Environment {
 public:
  void SetUp() override {
    server = std::make_unique<qt_test::XServer>();
    qputenv("QT_QPA_PLATFORM", "xcb");
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override {
    application_.reset();
    server.reset();
  }

 private:
  int count_ = 1;
  char name_[8] = "qt_test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const testing::Environment* const kApplication =
    testing::AddGlobalTestEnvironment(new ApplicationOnX);

/// Records what is typed by the keys that nothing handles and that so reach the host.
class TypedText final : public QObject {
 public:
  explicit TypedText(QWidget& window) { window.installEventFilter(this); }
  const std::string& text() const { return text_; }
  void clear() { text_.clear(); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      text_ += static_cast<QKeyEvent*>(event)->text().toStdString();
    }
    return false;
  }

 private:
  std::string text_;
};

struct Layout {
  const char* name;
  /// What the keys that are A, Q, Y and 1 in the US layout type.
  const char* types;
};

class PhysicalKeys : public testing::TestWithParam<Layout> {
 protected:
  void SetUp() override {
    server->setLayout(GetParam().name);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&host_.window(), kDeadline));
    server->focus(host_.window().winId());
    ASSERT_TRUE(QTest::qWaitFor([this] { return host_.view()->hasFocus(); }, kDeadline));
    posted_.clear();
  }

  /// Presses the key and waits for that many notifications.
  void press(unsigned key, std::size_t notifications) {
    const std::size_t wanted = posted_.names().size() + notifications;
    server->pressKey(key);
    EXPECT_TRUE(QTest::qWaitFor([&] { return posted_.names().size() >= wanted; }, kDeadline));
  }
  /// Presses a key that must have no effect, then a bound one, which can only arrive after it.
  void pressIneffective(unsigned key) {
    server->pressKey(key);
    press(kS, 1);
  }
  /// Returns, and forgets, what was posted since the last call.
  std::vector<std::string> posted() {
    std::vector<std::string> names = posted_.names();
    posted_.clear();
    return names;
  }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
  fakes::NotificationRecorder posted_{calls_};
};

using testing::ElementsAre;

constexpr const char* kPostedByS = "aac_listeningTestMonitorSourceActionPerformedNotification";

TEST_P(PhysicalKeys, PostWhatTheirPositionIsBoundTo) {
  for (const unsigned one : {kDigit1, kKeypad1}) {
    press(one, 2);
    EXPECT_THAT(posted(), ElementsAre("aac_monitorSourceActionPerformedNotification",
                                      "aac_listeningTestChooseAActionPerformedNotification"))
        << one;
    EXPECT_EQ(unit_.monitorSource, 1U);
    unit_.monitorSource = 0;
  }
  for (const unsigned two : {kDigit2, kKeypad2}) {
    unit_.monitorSource = 1;
    press(two, 2);
    EXPECT_THAT(posted(), ElementsAre("aac_monitorEncodedActionPerformedNotification",
                                      "aac_listeningTestChooseBActionPerformedNotification"))
        << two;
    EXPECT_EQ(unit_.monitorSource, 0U);
  }
  press(kS, 1);
  EXPECT_THAT(posted(), ElementsAre(kPostedByS));
  press(kA, 1);
  EXPECT_THAT(posted(), ElementsAre("aac_monitorAActionPerformedNotification"));
  press(kB, 1);
  EXPECT_THAT(posted(), ElementsAre("aac_monitorBActionPerformedNotification"));
  calls_.clear();
  press(kBackspace, 1);
  EXPECT_THAT(posted(), ElementsAre("aac_clearClipActionPerformedNotification"));
  EXPECT_EQ(calls_.count("unit.setProperty 5303 = 1"), 1U);
}

TEST_P(PhysicalKeys, PostTheSameWhateverTheyType) {
  TypedText typed(host_.window());
  // The application learns of a new layout some time after the keyboard has it.
  const auto typesAsExpected = [&] {
    typed.clear();
    for (const unsigned key : {kA, kQ, kY, kDigit1}) {
      server->pressKey(key);
    }
    return QTest::qWaitFor([&] { return typed.text() == GetParam().types; }, 1000);
  };
  ASSERT_TRUE(QTest::qWaitFor(typesAsExpected, kDeadline)) << "it types " << typed.text();
  posted();
  press(kA, 1);
  EXPECT_THAT(posted(), ElementsAre("aac_monitorAActionPerformedNotification"));
  pressIneffective(kQ);
  EXPECT_THAT(posted(), ElementsAre(kPostedByS)) << "even where it types an A";
}

TEST_P(PhysicalKeys, PostNothingForTheOtherDeleteKey) {
  pressIneffective(kForwardDelete);
  EXPECT_THAT(posted(), ElementsAre(kPostedByS));
}

TEST_P(PhysicalKeys, PostTheSameWithNumLock) {
  server->pressKey(kNumLock);
  press(kKeypad2, 2);
  EXPECT_THAT(posted(), ElementsAre("aac_monitorEncodedActionPerformedNotification",
                                    "aac_listeningTestChooseBActionPerformedNotification"));
  server->pressKey(kNumLock);
}

TEST_P(PhysicalKeys, ReachTheViewFromEveryControlThatTabReaches) {
  for (int stop = 0; stop < 6; ++stop) {
    const QWidget* before = QApplication::focusWidget();
    server->pressKey(kTab);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() != before; }, kDeadline));
    press(kS, 1);
    EXPECT_THAT(posted(), ElementsAre(kPostedByS));
  }
}

INSTANTIATE_TEST_SUITE_P(Layouts, PhysicalKeys,
                         testing::Values(Layout{"us", "aqy1"}, Layout{"de", "aqz1"},
                                         Layout{"fr", "qay&"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace

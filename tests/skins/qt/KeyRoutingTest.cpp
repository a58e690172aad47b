#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "skins/qt/Host.h"
#include "skins/qt/Keys.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/NotificationRecorder.h"
#include "view/main/Notifications.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKeyS = 1;
constexpr std::uint16_t kKeyZ = 6;
constexpr std::uint16_t kSpace = 49;

const std::string kS(velk::listeningTestMonitorSourceActionPerformedNotification);

/// Records the key presses that nothing handles and that so reach the host's window.
class UnhandledKeys final : public QObject {
 public:
  explicit UnhandledKeys(QWidget& window) { window.installEventFilter(this); }
  const std::vector<int>& keys() const { return keys_; }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      keys_.push_back(static_cast<QKeyEvent*>(event)->key());
    }
    return false;
  }

 private:
  std::vector<int> keys_;
};

class KeyRouting : public testing::Test {
 protected:
  KeyRouting() {
    host_.advance(120ms);
    posted_.clear();
  }

  void showTestPage() {
    host_.outlet<QTabWidget>("view.tabView").setCurrentIndex(1);
    QApplication::processEvents();
  }
  const std::vector<std::string>& posted() const { return posted_.names(); }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
  fakes::NotificationRecorder posted_{calls_};
};

TEST_F(KeyRouting, StartsAtTheView) {
  EXPECT_TRUE(host_.view()->hasFocus());
  qt_test::pressKeyAt(kKeyS);
  EXPECT_THAT(posted(), ElementsAre(kS));
}

TEST_F(KeyRouting, ReachesTheViewFromAMenuButtonWithTheFocus) {
  auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
  menu.setFocus();
  qt_test::pressKeyAt(kKeyS);
  qt_test::pressKeyAt(kKey1);
  EXPECT_EQ(posted().size(), 3U) << "one for S, two for 1";
  EXPECT_EQ(menu.currentIndex(), 0) << "\"S\" is the first letter of \"Streaming\"";
}

TEST_F(KeyRouting, ReachesTheViewFromACheckBoxWithTheFocus) {
  showTestPage();
  host_.outlet("listeningTestController.learnModeButton").setFocus();
  qt_test::pressKeyAt(kKeyS);
  EXPECT_THAT(posted(), ElementsAre(kS));
}

TEST_F(KeyRouting, ReachesTheViewFromTheTabsWithTheFocus) {
  host_.outlet<QTabWidget>("view.tabView").tabBar()->setFocus();
  qt_test::pressKeyAt(kKeyS);
  EXPECT_THAT(posted(), ElementsAre(kS));
}

TEST_F(KeyRouting, LeavesAControlItsOwnKeys) {
  showTestPage();
  auto& box = host_.outlet<QAbstractButton>("listeningTestController.learnModeButton");
  box.setFocus();
  qt_test::pressKeyAt(kSpace);
  EXPECT_TRUE(box.isChecked());
  EXPECT_THAT(posted(), IsEmpty());
}

TEST_F(KeyRouting, LeavesAnOpenMenuItsKeys) {
  auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
  menu.setFocus();
  menu.showPopup();
  QApplication::processEvents();
  qt_test::pressKeyAt(kKeyS, *menu.view());
  EXPECT_THAT(posted(), IsEmpty());
  menu.hidePopup();
}

TEST_F(KeyRouting, LeavesEditedTextItsKeys) {
  auto* editor = new QLineEdit(&host_.window());
  editor->show();
  editor->setFocus();
  qt_test::pressKeyAt(kKeyS);
  EXPECT_EQ(editor->text(), "s");
  EXPECT_THAT(posted(), IsEmpty());
}

TEST_F(KeyRouting, LeavesASheetItsKeys) {
  QTest::mouseClick(&host_.outlet("view.settingsButton"), Qt::LeftButton);
  QWidget& sheet = host_.outlet("keyController.keySettingsSheet");
  ASSERT_TRUE(sheet.isVisible());
  qt_test::pressKeyAt(kKeyS, sheet);
  qt_test::pressKeyAt(kKeyS, host_.outlet("keyController.doneButton"));
  EXPECT_THAT(posted(), IsEmpty());
}

TEST_F(KeyRouting, PassesEveryPressOnToTheHost) {
  const UnhandledKeys unhandled(host_.window());
  qt_test::pressKeyAt(kKeyS);
  qt_test::pressKeyAt(kKeyZ);
  EXPECT_THAT(unhandled.keys(), ElementsAre(Qt::Key_S, Qt::Key_Z));
  host_.outlet("view.encoderPopup").setFocus();
  qt_test::pressKeyAt(kKeyS);
  EXPECT_THAT(unhandled.keys(), ElementsAre(Qt::Key_S, Qt::Key_Z, Qt::Key_S));
  EXPECT_THAT(posted(), ElementsAre(kS, kS)) << "each press once";
}

TEST_F(KeyRouting, MovesTheFocusByTab) {
  host_.view()->setFocus();
  std::vector<QWidget*> visited;
  for (int press = 0; press < 8; ++press) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    visited.push_back(QApplication::focusWidget());
  }
  EXPECT_THAT(visited, testing::Contains(&host_.outlet("view.encoderPopup")));
  EXPECT_THAT(visited, testing::Contains(&host_.outlet("view.settingsButton")));
  EXPECT_THAT(visited, testing::Contains(&host_.outlet("auditionController.resetButton")));
  EXPECT_EQ(visited[0], &host_.outlet("view.encoderPopup"));
}

TEST_F(KeyRouting, ReturnsToTheViewWhenAControlIsClicked) {
  host_.outlet("view.encoderPopup").setFocus();
  QTest::mouseClick(&host_.outlet("auditionController.resetButton"), Qt::LeftButton);
  EXPECT_TRUE(host_.view()->hasFocus());
  auto* editor = new QLineEdit(&host_.window());
  editor->show();
  editor->setFocus();
  QTest::mouseClick(&host_.outlet("auditionController.showDetailsText"), Qt::LeftButton);
  EXPECT_TRUE(host_.view()->hasFocus());
}

TEST_F(KeyRouting, RepeatsAsTheKeyboardRepeats) {
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_S, Qt::NoModifier, 31 + 8, 0, 0, "s", true);
  QApplication::sendEvent(host_.view(), &repeat);
  EXPECT_THAT(posted(), ElementsAre(kS));
}

TEST_F(KeyRouting, IgnoresModifiers) {
  for (const Qt::KeyboardModifier modifier :
       {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
        Qt::MetaModifier}) {
    posted_.clear();
    QTest::keyClick(host_.view(), Qt::Key_S, modifier);
    EXPECT_THAT(posted(), ElementsAre(kS)) << modifier;
  }
}

TEST_F(KeyRouting, EndsWhenTheViewLeavesItsParent) {
  host_.view()->setParent(nullptr);
  qt_test::pressKeyAt(kKeyS, *host_.view());
  EXPECT_THAT(posted(), IsEmpty());
  delete host_.view();
}

}  // namespace

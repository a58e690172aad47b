#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <map>

#include "skins/qt/Host.h"
#include "skins/qt/Keys.h"
#include "skins/qt/Mouse.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/NotificationRecorder.h"

/// Which view gets the keys: of two the focused one, and any view after the mouse was used in it.
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::IsEmpty;

constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKey2 = 19;

/// The position of every bound key, and the notifications that it posts.
const std::map<std::uint16_t, std::vector<std::string>>& boundKeys() {
  static const std::vector<std::string> one = {
      "aac_monitorSourceActionPerformedNotification",
      "aac_listeningTestChooseAActionPerformedNotification"};
  static const std::vector<std::string> two = {
      "aac_monitorEncodedActionPerformedNotification",
      "aac_listeningTestChooseBActionPerformedNotification"};
  static const std::map<std::uint16_t, std::vector<std::string>> keys = {
      {kKey1, one},
      {83, one},
      {kKey2, two},
      {84, two},
      {51, {"aac_clearClipActionPerformedNotification"}},
      {1, {"aac_listeningTestMonitorSourceActionPerformedNotification"}},
      {0, {"aac_monitorAActionPerformedNotification"}},
      {11, {"aac_monitorBActionPerformedNotification"}},
  };
  return keys;
}

class KeysAfterTheMouse : public testing::Test {
 protected:
  KeysAfterTheMouse() { settle(); }

  void settle() { host_.advance(120ms); }
  QTabWidget& tabs() { return host_.outlet<QTabWidget>("view.tabView"); }
  void click(std::string_view outlet) { qt_test::clickOn(host_.outlet(outlet)); }

  /// Presses each bound key on the widget that has the focus, which must be the view.
  void expectKeysToWork(const std::string& after) {
    SCOPED_TRACE("after " + after);
    settle();
    ASSERT_TRUE(host_.view()->hasFocus());
    for (const auto& [key, names] : boundKeys()) {
      posted_.clear();
      qt_test::pressKeyAt(key);
      EXPECT_EQ(posted_.names(), names) << "key " << key;
      EXPECT_THAT(posted_.objects(), Each(posted_.objects().front()));
    }
  }
  QWidget* openSheet() const {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->isModal()) {
        return window;
      }
    }
    return nullptr;
  }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
  fakes::NotificationRecorder posted_{calls_};
};

TEST_F(KeysAfterTheMouse, WorkWhateverWasClickedOnTheAuditionPage) {
  expectKeysToWork("nothing");
  click("auditionController.showDetailsButton");
  expectKeysToWork("the details button");
  std::vector<QWidget*> clicked;
  for (QWidget* widget : host_.view()->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != host_.view()->window() ||
        qobject_cast<QComboBox*>(widget) != nullptr ||
        widget == &host_.outlet("view.settingsButton") ||
        widget == &host_.outlet("auditionController.showDetailsButton") ||
        widget == &host_.outlet("auditionController.showDetailsText")) {
      continue;
    }
    qt_test::clickOn(*widget);
    clicked.push_back(widget);
    expectKeysToWork(widget->objectName().toStdString());
    if (HasFailure()) {
      return;
    }
  }
  EXPECT_THAT(clicked, testing::Contains(&host_.outlet("auditionController.resetButton")));
  EXPECT_THAT(clicked, testing::Contains(&host_.outlet("auditionController.sslField")));
  EXPECT_THAT(clicked, testing::Contains(&host_.named("monitorSourceSegment")));
  click("auditionController.showDetailsText");
  expectKeysToWork("the details caption");
}

TEST_F(KeysAfterTheMouse, WorkWhateverWasClickedOnTheTestPage) {
  qt_test::clickTab(tabs(), 1);
  expectKeysToWork("the tab");
  for (const char* button : {"learnModeButton", "sourceButton", "aButton", "bButton",
                             "aIsSourceButton", "bIsSourceButton"}) {
    click(std::string("listeningTestController.") + button);
    expectKeysToWork(button);
    if (QWidget* sheet = openSheet()) {
      // The key presses above also answered the test, which ends after twenty answers.
      QTest::keyClick(sheet, Qt::Key_Return);
    }
  }
  qt_test::clickOn(host_.named("listeningTestHelpButton"));
  expectKeysToWork("the help button");
}

TEST_F(KeysAfterTheMouse, WorkAfterAPickAndAfterAClosedMenu) {
  auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
  qt_test::clickOn(menu);
  QApplication::processEvents();
  menu.hidePopup();
  expectKeysToWork("a closed menu");
  qt_test::clickOn(menu);
  QApplication::processEvents();
  qt_test::pickItem(menu, 2);
  expectKeysToWork("a pick");
}

TEST_F(KeysAfterTheMouse, WorkAfterEachSheetHasClosed) {
  auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
  for (const char* button : {"settingsController.OKButton", "settingsController.cancelButton"}) {
    qt_test::pickItem(menu, menu.count() - 1);
    ASSERT_NE(openSheet(), nullptr);
    click(button);
    expectKeysToWork(button);
  }
  for (const char* button : {"keyController.doneButton", "keyController.cancelButton"}) {
    click("view.settingsButton");
    ASSERT_NE(openSheet(), nullptr);
    click(button);
    expectKeysToWork(button);
  }
  qt_test::clickTab(tabs(), 1);
  click("listeningTestController.endTestButton");
  ASSERT_NE(openSheet(), nullptr);
  qt_test::clickOn(host_.named("resultsOKButton"));
  expectKeysToWork("the results");
}

TEST_F(KeysAfterTheMouse, WorkAfterTheAlertIsAnswered) {
  qt_test::clickTab(tabs(), 1);
  click("listeningTestController.aIsSourceButton");
  settle();
  qt_test::clickTab(tabs(), 0);
  auto* alert = qobject_cast<QMessageBox*>(openSheet());
  ASSERT_NE(alert, nullptr);
  qt_test::clickOn(*alert->defaultButton());
  expectKeysToWork("Resume");
}

/// Two views side by side in one window.
class TwoViewsInOneWindow : public testing::Test {
 protected:
  TwoViewsInOneWindow() {
    qt_test::HostOptions options;
    options.runLoop = &loop_;
    first_.emplace(firstUnit_, options);
    second_.emplace(secondUnit_, options);
    second_->view()->setParent(&first_->window());
    second_->view()->move(0, first_->view()->height());
    second_->view()->show();
    first_->window().setMinimumHeight(2 * first_->view()->height());
    first_->window().activateWindow();
    first_->advance(120ms);
    firstCalls_.clear();
    secondCalls_.clear();
  }
  void TearDown() override {
    delete second_->view();
    second_.reset();
    first_.reset();
  }

  fakes::CallLog loopLog_;
  fakes::FakeRunLoop loop_{loopLog_};
  fakes::CallLog firstCalls_;
  fakes::CallLog secondCalls_;
  fakes::FakeConverter firstUnit_{firstCalls_};
  fakes::FakeConverter secondUnit_{secondCalls_};
  std::optional<qt_test::Host> first_;
  std::optional<qt_test::Host> second_;
};

TEST_F(TwoViewsInOneWindow, GetTheKeysOneAtATime) {
  fakes::CallLog log;
  fakes::NotificationRecorder posted(log);
  std::vector<const void*> objects;
  for (qt_test::Host* host : {&*first_, &*second_}) {
    qt_test::clickOn(host->outlet("auditionController.sourceClipIndicator"));
    ASSERT_TRUE(host->view()->hasFocus());
    posted.clear();
    for (const auto& [key, names] : boundKeys()) {
      qt_test::pressKeyAt(key);
    }
    ASSERT_EQ(posted.objects().size(), 12U);
    EXPECT_THAT(posted.objects(), Each(posted.objects().front()));
    objects.push_back(posted.objects().front());
  }
  EXPECT_NE(objects[0], objects[1]);
}

TEST_F(TwoViewsInOneWindow, ChangeOnlyTheirOwnUnit) {
  first_->view()->setFocus();
  qt_test::pressKeyAt(kKey1);
  EXPECT_EQ(firstUnit_.monitorSource, 1U);
  EXPECT_THAT(secondCalls_.starting("unit.set"), IsEmpty());
  second_->view()->setFocus();
  firstCalls_.clear();
  qt_test::pressKeyAt(kKey1);
  qt_test::pressKeyAt(51);
  EXPECT_EQ(secondUnit_.monitorSource, 1U);
  EXPECT_THAT(firstCalls_.starting("unit.set"), IsEmpty());
}

TEST_F(TwoViewsInOneWindow, GetNoKeysWhileSomethingElseInTheWindowHasTheFocus) {
  auto* button = new QPushButton("Play", &first_->window());
  button->show();
  button->setFocus();
  qt_test::pressKeyAt(kKey1);
  EXPECT_THAT(firstCalls_.starting("unit.set"), IsEmpty());
  EXPECT_THAT(secondCalls_.starting("unit.set"), IsEmpty());
}

TEST_F(TwoViewsInOneWindow, GetTheKeysFromTheirOwnControls) {
  second_->outlet("auditionController.resetButton").setFocus();
  qt_test::pressKeyAt(kKey1);
  EXPECT_EQ(secondUnit_.monitorSource, 1U);
  EXPECT_THAT(firstCalls_.starting("unit.set"), IsEmpty());
}

TEST(AView, MayBeDestroyedByAnObserverOfItsKeys) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  for (const bool fromAControl : {false, true}) {
    qt_test::Host host(unit);
    host.advance(120ms);
    QWidget& focused = fromAControl ? host.outlet("auditionController.resetButton") : *host.view();
    focused.setFocus();
    int observer = 0;
    ui::NotificationCenter::defaultCenter().addObserver(
        &observer, velk::monitorSourceActionPerformedNotification, nullptr,
        [&](const ui::Notification&) { delete host.view(); });
    qt_test::pressKeyAt(kKey1);
    ui::NotificationCenter::defaultCenter().removeObserver(&observer);
    EXPECT_EQ(host.view(), nullptr);
    host.advance(300ms);
  }
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <utility>

#include "skins/qt/Host.h"
#include "skins/qt/Mouse.h"
#include "view/fakes/FakeConverter.h"

/// Everything that can be done with a mouse, done with keys alone.
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kNewestCustomItem = 5;

class Keyboard : public testing::Test {
 protected:
  Keyboard() {
    unit_.setSetting({0, 0, 3});
    host_.emplace(unit_);
    settle();
    calls_.clear();
  }

  void settle() { host_->advance(120ms); }
  static void type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    // If a window has opened or closed, the focus moves now.
    QApplication::processEvents();
  }
  /// Opens the menu, which must have the focus, with the first key and types the others into it.
  template <class... Keys>
  static void typeIntoMenu(QComboBox& box, Qt::Key opening, Keys... keys) {
    ASSERT_TRUE(box.hasFocus());
    type(opening);
    ASSERT_TRUE(box.view()->isVisible());
    (QTest::keyClick(box.view(), keys), ...);
    ASSERT_FALSE(box.view()->isVisible());
    // Off screen there is no window manager to do this.
    if (QApplication::activeModalWidget() == nullptr ||
        QApplication::activeModalWidget() == box.window()) {
      box.window()->activateWindow();
    }
    QApplication::processEvents();
  }
  /// Presses Tab until the widget has the focus.
  void tabTo(QWidget& widget) {
    for (int press = 0; press < 30 && !widget.hasFocus(); ++press) {
      type(Qt::Key_Tab);
    }
    ASSERT_TRUE(widget.hasFocus()) << "Tab never reaches " << widget.objectName().toStdString();
  }
  void tabTo(std::string_view outlet) { tabTo(host_->outlet(outlet)); }
  QTabBar& tabs() { return *host_->outlet<QTabWidget>("view.tabView").tabBar(); }
  QComboBox& menu() { return host_->outlet<QComboBox>("view.encoderPopup"); }
  QComboBox& popUp(const std::string& name) {
    return host_->outlet<QComboBox>("settingsController." + name);
  }
  QWidget& customSheet() { return host_->outlet("settingsController.settingsSheet"); }
  void showTestPage() {
    host_->outlet<QTabWidget>("view.tabView").setCurrentIndex(1);
    QApplication::processEvents();
  }
  std::vector<std::string> writes() const { return calls_.starting("unit.set"); }

  void openCustomSheet() {
    tabTo(menu());
    typeIntoMenu(menu(), Qt::Key_Down, Qt::Key_End, Qt::Key_Return);
    settle();
    ASSERT_TRUE(customSheet().isVisible());
    calls_.clear();
  }
  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  std::optional<qt_test::Host> host_;
};

TEST_F(Keyboard, PicksAPresetFromTheEncoderMenu) {
  tabTo(menu());
  typeIntoMenu(menu(), Qt::Key_Space, Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return);
  EXPECT_THAT(writes(), ElementsAre("unit.setProperty 36 = preset 2"));
  settle();
  EXPECT_EQ(menu().currentIndex(), 2);
}

TEST_F(Keyboard, LeavesTheEncoderMenuWithoutAPickByEscape) {
  tabTo(menu());
  typeIntoMenu(menu(), Qt::Key_Down, Qt::Key_Home, Qt::Key_Escape);
  EXPECT_THAT(writes(), IsEmpty());
  EXPECT_EQ(menu().currentIndex(), kNewestCustomItem);
}

TEST_F(Keyboard, StepsOverTheSeparatorToAnEarlierCustomSetting) {
  unit_.hostSetsPreset(3);
  settle();
  ASSERT_EQ(menu().currentIndex(), 3);
  calls_.clear();
  tabTo(menu());
  typeIntoMenu(menu(), Qt::Key_Down, Qt::Key_Down, Qt::Key_Return);
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 0", "unit.setParameter 1 = 0",
                                    "unit.setParameter 2 = 3"));
  EXPECT_EQ(menu().currentIndex(), kNewestCustomItem);
}

TEST_F(Keyboard, OperatesTheWholeCustomSheetAndConfirmsItByReturn) {
  openCustomSheet();
  tabTo(popUp("strategyPopup"));
  typeIntoMenu(popUp("strategyPopup"), Qt::Key_Down, Qt::Key_End, Qt::Key_Return);
  settle();
  EXPECT_EQ(host_->outlet<QStackedWidget>("settingsController.rateQualityTabView").currentIndex(),
            1);
  auto& slider = host_->outlet<QSlider>("settingsController.qualitySlider");
  tabTo(slider);
  const int start = slider.value();
  type(Qt::Key_Right);
  EXPECT_EQ(unit_.parameters[2], static_cast<float>(start + 1));
  type(Qt::Key_Left);
  EXPECT_EQ(unit_.parameters[2], static_cast<float>(start));
  type(Qt::Key_PageUp);
  EXPECT_GT(unit_.parameters[2], static_cast<float>(start + 1));
  type(Qt::Key_End);
  EXPECT_EQ(unit_.parameters[2], 127.0F);
  type(Qt::Key_Home);
  EXPECT_EQ(unit_.parameters[2], 0.0F);
  type(Qt::Key_Right);
  type(Qt::Key_Return);
  EXPECT_FALSE(customSheet().isVisible());
  EXPECT_EQ(unit_.parameters, (std::array<float, 3>{0, 2, 1}));
  settle();
  EXPECT_EQ(menu().currentText(), "AAC VBR Quality: 1");
}

TEST_F(Keyboard, PicksTypeAndRateInTheCustomSheetAndCancelsThemByEscape) {
  openCustomSheet();
  tabTo(popUp("bitratePopup"));
  typeIntoMenu(popUp("bitratePopup"), Qt::Key_Up, Qt::Key_Up, Qt::Key_Return);
  EXPECT_EQ(unit_.parameters[2], 2.0F);
  type(Qt::Key_Tab, Qt::ShiftModifier);
  type(Qt::Key_Tab, Qt::ShiftModifier);
  ASSERT_TRUE(popUp("typePopup").hasFocus());
  typeIntoMenu(popUp("typePopup"), Qt::Key_Down, Qt::Key_Down, Qt::Key_Return);
  EXPECT_EQ(unit_.parameters[0], 1.0F);
  settle();
  EXPECT_FALSE(popUp("strategyPopup").isEnabled());
  calls_.clear();
  type(Qt::Key_Escape);
  EXPECT_FALSE(customSheet().isVisible());
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 0", "unit.setParameter 1 = 0",
                                    "unit.setParameter 2 = 3"));
  EXPECT_TRUE(host_->view()->hasFocus()) << "the keys are the view's again";
}

TEST_F(Keyboard, CancelsTheCustomSheetByItsButton) {
  openCustomSheet();
  tabTo("settingsController.cancelButton");
  type(Qt::Key_Space);
  EXPECT_FALSE(customSheet().isVisible());
  EXPECT_EQ(unit_.parameters, (std::array<float, 3>{0, 0, 3}));
}

TEST_F(Keyboard, ChoosesTheMonitoredSignalByArrows) {
  QWidget& source = host_->named("monitorSourceSegment");
  QWidget& encoded = host_->named("monitorEncodedSegment");
  tabTo(source);
  EXPECT_THAT(writes(), IsEmpty()) << "the focus alone chooses nothing";
  type(Qt::Key_Right);
  EXPECT_TRUE(encoded.hasFocus());
  EXPECT_EQ(unit_.monitorSource, 0U);
  type(Qt::Key_Left);
  EXPECT_TRUE(source.hasFocus());
  EXPECT_EQ(unit_.monitorSource, 1U);
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(source).isChecked());
  type(Qt::Key_Left);
  EXPECT_TRUE(source.hasFocus()) << "there is nothing further left";
  EXPECT_EQ(writes().size(), 2U);
}

TEST_F(Keyboard, ChoosesTheMonitoredSignalBySpace) {
  tabTo(host_->named("monitorSourceSegment"));
  type(Qt::Key_Space);
  EXPECT_EQ(unit_.monitorSource, 1U);
  type(Qt::Key_Space);
  EXPECT_EQ(unit_.monitorSource, 1U) << "it stays chosen";
}

TEST_F(Keyboard, ResetsTheMetersAndOpensTheDetails) {
  tabTo("auditionController.resetButton");
  type(Qt::Key_Space);
  EXPECT_THAT(writes(), ElementsAre("unit.setProperty 5303 = 1"));
  tabTo("auditionController.showDetailsButton");
  type(Qt::Key_Space);
  EXPECT_EQ(host_->view()->height(), 369);
  type(Qt::Key_Space);
  EXPECT_EQ(host_->view()->height(), 195);
}

TEST_F(Keyboard, OpensTheHelpOfEachPage) {
  tabTo("auditionController.helpButton");
  type(Qt::Key_Space);
  showTestPage();
  tabTo(host_->named("listeningTestHelpButton"));
  type(Qt::Key_Space);
  ASSERT_EQ(host_->openedUrls().size(), 2U);
  EXPECT_EQ(host_->openedUrls()[0].fragment(), "audition");
  EXPECT_EQ(host_->openedUrls()[1].fragment(), "listening-test");
}

TEST_F(Keyboard, OpensAndClosesTheKeyBindings) {
  QWidget& sheet = host_->outlet("keyController.keySettingsSheet");
  for (const Qt::Key closing : {Qt::Key_Return, Qt::Key_Escape}) {
    tabTo("view.settingsButton");
    type(Qt::Key_Space);
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_TRUE(host_->outlet("keyController.doneButton").hasFocus());
    type(closing);
    EXPECT_FALSE(sheet.isVisible());
  }
}

TEST_F(Keyboard, ChangesPagesByArrows) {
  tabTo(tabs());
  type(Qt::Key_Right);
  EXPECT_EQ(tabs().currentIndex(), 1);
  EXPECT_EQ(host_->view()->height(), 255);
  type(Qt::Key_Left);
  EXPECT_EQ(tabs().currentIndex(), 0);
  EXPECT_EQ(host_->view()->height(), 195);
}

TEST_F(Keyboard, RunsAListeningTestAndStopsItInTheAlert) {
  showTestPage();
  tabTo("listeningTestController.learnModeButton");
  type(Qt::Key_Space);
  EXPECT_TRUE(
      host_->outlet<QAbstractButton>("listeningTestController.learnModeButton").isChecked());
  type(Qt::Key_Space);
  tabTo("listeningTestController.bButton");
  type(Qt::Key_Space);
  EXPECT_TRUE(host_->outlet<QAbstractButton>("listeningTestController.bButton").isChecked());
  tabTo("listeningTestController.aIsSourceButton");
  type(Qt::Key_Space);
  settle();
  EXPECT_EQ(unit_.listeningTestActive, 1U);
  for (const bool stop : {false, true}) {
    tabTo(tabs());
    type(Qt::Key_Left);
    QMessageBox* box = host_->alert();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(tabs().currentIndex(), 1) << "the page stays while the alert asks";
    QAbstractButton* answer = nullptr;
    for (QAbstractButton* button : box->buttons()) {
      if (button->text() == (stop ? "Stop" : "Resume")) {
        answer = button;
      }
    }
    ASSERT_NE(answer, nullptr);
    tabTo(*answer);
    type(Qt::Key_Space);
    EXPECT_EQ(unit_.listeningTestActive, stop ? 0U : 1U);
    QApplication::processEvents();
  }
  EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(Keyboard, EndsAListeningTestAndClosesItsResults) {
  showTestPage();
  tabTo("listeningTestController.endTestButton");
  type(Qt::Key_Space);
  QWidget& results = host_->outlet("listeningTestController.resultsSheet");
  ASSERT_TRUE(results.isVisible());
  auto& save = host_->outlet<QAbstractButton>("listeningTestController.saveResultsButton");
  tabTo(save);
  type(Qt::Key_Space);
  EXPECT_TRUE(save.isChecked());
  type(Qt::Key_Space);
  type(Qt::Key_Return);
  EXPECT_FALSE(results.isVisible());
}

/// The widgets that Tab reaches in the current window, each once.
std::vector<QWidget*> tabChain() {
  std::vector<QWidget*> chain;
  for (int press = 0; press < 40; ++press) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* reached = QApplication::focusWidget();
    if (std::find(chain.begin(), chain.end(), reached) != chain.end()) {
      break;
    }
    chain.push_back(reached);
  }
  return chain;
}

/// Checks that Tab goes from a window's first control to every other, left to right and downwards.
void expectReadingOrder(const QWidget& top) {
  std::vector<QWidget*> chain = tabChain();
  const auto place = [&top](const QWidget& widget) { return widget.mapTo(&top, QPoint(0, 0)); };
  std::erase(chain, &top);
  const auto highest = std::min_element(chain.begin(), chain.end(), [&](auto* one, auto* other) {
    const QPoint a = place(*one);
    const QPoint b = place(*other);
    return std::pair(a.y(), a.x()) < std::pair(b.y(), b.x());
  });
  std::rotate(chain.begin(), highest, chain.end());
  int controls = 0;
  for (const QWidget* widget : top.findChildren<QWidget*>()) {
    const bool reachable = widget->isVisible() && widget->isEnabled() &&
                           widget->window() == top.window() && widget->focusProxy() == nullptr &&
                           (widget->focusPolicy() & Qt::TabFocus) != 0;
    if (reachable) {
      ++controls;
      EXPECT_THAT(chain, testing::Contains(widget)) << widget->objectName().toStdString();
    }
  }
  EXPECT_GT(controls, 1);
  const QWidget* before = nullptr;
  for (const QWidget* widget : chain) {
    if (before != nullptr) {
      const bool isRightOf = place(*widget).x() >= place(*before).x() + before->width() &&
                             place(*widget).y() < place(*before).y() + before->height();
      const bool isBelow = place(*widget).y() >= place(*before).y() + before->height();
      EXPECT_TRUE(isRightOf || isBelow) << widget->objectName().toStdString() << " comes after "
                                        << before->objectName().toStdString();
    }
    before = widget;
  }
}

TEST_F(Keyboard, ReachesEveryControlOfEachPageInReadingOrder) {
  host_->view()->setFocus();
  expectReadingOrder(*host_->view());
  qt_test::clickOn(host_->outlet("auditionController.showDetailsButton"));
  expectReadingOrder(*host_->view());
  showTestPage();
  host_->view()->setFocus();
  expectReadingOrder(*host_->view());
}

TEST_F(Keyboard, ReachesEveryControlOfEachSheetInReadingOrder) {
  openCustomSheet();
  expectReadingOrder(customSheet());
  type(Qt::Key_Escape);
  unit_.hostSetsSetting({0, 2, 64});
  settle();
  openCustomSheet();
  expectReadingOrder(customSheet());
  type(Qt::Key_Escape);
  qt_test::clickOn(host_->outlet("view.settingsButton"));
  QApplication::processEvents();
  expectReadingOrder(host_->outlet("keyController.keySettingsSheet"));
  type(Qt::Key_Escape);
  showTestPage();
  qt_test::clickOn(host_->outlet("listeningTestController.endTestButton"));
  QApplication::processEvents();
  expectReadingOrder(host_->outlet("listeningTestController.resultsSheet"));
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <stdexcept>
#include <string>
#include <vector>

#include "skins/qt/TabViewAdapter.h"
#include "view/fakes/LogCapture.h"

namespace {

using testing::ElementsAre;

/// Two tabs in a window, and a delegate that records what it is asked.
class TabView : public testing::Test, public ui::TabViewDelegate {
 protected:
  TabView() {
    tabs_.addTab(new QWidget, "Audition");
    tabs_.addTab(new QWidget, "Test");
    view_ = std::make_unique<ui::qt::TabViewAdapter>(tabs_);
    view_->setDelegate(this);
    tabs_.show();
    tabs_.activateWindow();
    tabs_.tabBar()->setFocus();
    QApplication::processEvents();
  }

  bool shouldSelectTabViewItem(ui::TabViewItem* item) override {
    note("should", item);
    if (fails_) {
      throw std::runtime_error("the delegate failed");
    }
    return allows_;
  }
  void willSelectTabViewItem(ui::TabViewItem* item) override { note("will", item); }

  void note(const char* what, const ui::TabViewItem* item) {
    asked_.push_back(std::string(what) + " " + std::to_string(view_->indexOfItem(item)) + " of " +
                     std::to_string(view_->indexOfSelectedItem()));
  }
  void click(int index) {
    QTest::mouseClick(tabs_.tabBar(), Qt::LeftButton, {}, tabs_.tabBar()->tabRect(index).center());
  }
  void expectSelected(int index) const {
    EXPECT_EQ(view_->indexOfSelectedItem(), index);
    EXPECT_EQ(tabs_.currentIndex(), index);
    EXPECT_TRUE(tabs_.widget(index)->isVisible());
    EXPECT_FALSE(tabs_.widget(1 - index)->isVisible());
  }

  QTabWidget tabs_;
  std::unique_ptr<ui::qt::TabViewAdapter> view_;
  bool allows_ = true;
  bool fails_ = false;
  std::vector<std::string> asked_;
};

TEST_F(TabView, AsksBeforeAClickChangesThePage) {
  click(1);
  EXPECT_THAT(asked_, ElementsAre("should 1 of 0", "will 1 of 0"));
  expectSelected(1);
}

TEST_F(TabView, KeepsThePageWhenAClickIsRefused) {
  allows_ = false;
  click(1);
  EXPECT_THAT(asked_, ElementsAre("should 1 of 0"));
  expectSelected(0);
}

TEST_F(TabView, KeepsThePageWhenAKeyIsRefused) {
  allows_ = false;
  QTest::keyClick(tabs_.tabBar(), Qt::Key_Right);
  EXPECT_THAT(asked_, ElementsAre("should 1 of 0"));
  QTest::keyClick(&tabs_, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(asked_.size(), 2U);
  expectSelected(0);
}

TEST_F(TabView, ChangesThePageByKey) {
  QTest::keyClick(tabs_.tabBar(), Qt::Key_Right);
  EXPECT_THAT(asked_, ElementsAre("should 1 of 0", "will 1 of 0"));
  expectSelected(1);
}

TEST_F(TabView, KeepsThePageWhenAnAssistiveToolIsRefused) {
  allows_ = false;
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(tabs_.tabBar());
  ASSERT_NE(bar, nullptr);
  QAccessibleInterface* tab = bar->child(1);
  ASSERT_NE(tab, nullptr);
  ASSERT_NE(tab->actionInterface(), nullptr);
  tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(asked_, ElementsAre("should 1 of 0"));
  expectSelected(0);
}

TEST_F(TabView, AsksTheSameWayWhenCodeSelects) {
  allows_ = false;
  view_->selectItemAtIndex(1);
  expectSelected(0);
  allows_ = true;
  view_->selectItemAtIndex(1);
  EXPECT_THAT(asked_, ElementsAre("should 1 of 0", "should 1 of 0", "will 1 of 0"));
  expectSelected(1);
}

TEST_F(TabView, AsksAlsoForThePageThatIsSelected) {
  click(0);
  view_->selectItemAtIndex(0);
  EXPECT_THAT(asked_, ElementsAre("should 0 of 0", "will 0 of 0", "should 0 of 0", "will 0 of 0"));
  expectSelected(0);
}

TEST_F(TabView, IgnoresAnIndexOutOfRange) {
  view_->selectItemAtIndex(2);
  view_->selectItemAtIndex(-1);
  EXPECT_THAT(asked_, ElementsAre());
  EXPECT_EQ(view_->itemAtIndex(2), nullptr);
}

TEST_F(TabView, KeepsThePageWhenTheDelegateThrowsAtAClick) {
  fakes::CallLog calls;
  const fakes::LogCapture log(calls);
  fails_ = true;
  click(1);
  expectSelected(0);
  EXPECT_THAT(log.lines(), ElementsAre(testing::HasSubstr("the delegate failed")));
}

TEST_F(TabView, LetsCodeThatSelectsHaveTheExceptionAndKeepsThePage) {
  fails_ = true;
  EXPECT_THROW(view_->selectItemAtIndex(1), std::runtime_error);
  expectSelected(0);
}

TEST_F(TabView, NeedsNoDelegate) {
  view_->setDelegate(nullptr);
  click(1);
  expectSelected(1);
  EXPECT_THAT(asked_, ElementsAre());
}

}  // namespace

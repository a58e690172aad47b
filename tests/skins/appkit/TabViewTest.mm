#import <AppKit/AppKit.h>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "skins/appkit/MainThread.h"
#include "skins/appkit/TabViewAdapter.h"
#include "view/fakes/LogCapture.h"

namespace {

using appkit_test::onMain;
using testing::ElementsAre;
using testing::HasSubstr;

/// Two pages, and a delegate that records what it is asked.
class TabView : public ui::TabViewDelegate {
 public:
  TabView() {
    for (int page = 0; page < 2; ++page) {
      [native_.get() addTabViewItem:[[[NSTabViewItem alloc] initWithIdentifier:nil] autorelease]];
    }
    adapter_ = std::make_unique<ui::appkit::TabViewAdapter>(native_.get());
    adapter_->setDelegate(this);
  }
  TabView(const TabView&) = delete;
  TabView& operator=(const TabView&) = delete;
  ~TabView() override = default;

  bool shouldSelectTabViewItem(ui::TabViewItem* item) override {
    note("should", item);
    if (failsWhenAsked) {
      throw std::runtime_error("the delegate failed");
    }
    return true;
  }
  void willSelectTabViewItem(ui::TabViewItem* item) override {
    note("will", item);
    if (failsBeforeChange) {
      throw std::runtime_error("the delegate failed late");
    }
  }

  /// Does what a click on a tab does.
  void userSelects(int index) { [native_.get() selectTabViewItemAtIndex:index]; }
  ui::appkit::TabViewAdapter& adapter() { return *adapter_; }

  bool failsWhenAsked = false;
  bool failsBeforeChange = false;
  std::vector<std::string> asked;

 private:
  void note(const char* what, const ui::TabViewItem* item) {
    asked.push_back(std::string(what) + " " + std::to_string(adapter_->indexOfItem(item)));
  }

  ui::appkit::Retained<NSTabView*> native_ = ui::appkit::Retained<NSTabView*>::adopt(
      [[NSTabView alloc] initWithFrame:NSMakeRect(0, 0, 200, 100)]);
  std::unique_ptr<ui::appkit::TabViewAdapter> adapter_;
};

TEST(TabView, AsksBeforeAUserChangesThePage) {
  onMain([] {
    TabView tabs;
    tabs.userSelects(1);
    EXPECT_THAT(tabs.asked, ElementsAre("should 1", "will 1"));
    EXPECT_EQ(tabs.adapter().indexOfSelectedItem(), 1);
  });
}

TEST(TabView, KeepsThePageWhenTheDelegateThrowsAtAClick) {
  onMain([] {
    fakes::CallLog calls;
    const fakes::LogCapture log(calls);
    TabView tabs;
    tabs.failsWhenAsked = true;
    tabs.userSelects(1);
    EXPECT_EQ(tabs.adapter().indexOfSelectedItem(), 0);
    EXPECT_THAT(tabs.asked, ElementsAre("should 1"));
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("the delegate failed")));
  });
}

TEST(TabView, LetsCodeThatSelectsHaveTheExceptionAndKeepsThePage) {
  onMain([] {
    fakes::CallLog calls;
    const fakes::LogCapture log(calls);
    TabView tabs;
    tabs.failsWhenAsked = true;
    EXPECT_THROW(tabs.adapter().selectItemAtIndex(1), std::runtime_error);
    EXPECT_EQ(tabs.adapter().indexOfSelectedItem(), 0);
    EXPECT_THAT(log.lines(), ElementsAre());
    // After that, exceptions from the user's selections are logged again.
    tabs.userSelects(1);
    EXPECT_EQ(log.lines().size(), 1U);
  });
}

TEST(TabView, LetsCodeThatSelectsHaveALateExceptionToo) {
  onMain([] {
    TabView tabs;
    tabs.failsBeforeChange = true;
    EXPECT_THROW(tabs.adapter().selectItemAtIndex(1), std::runtime_error);
  });
}

TEST(TabView, NeedsNoDelegate) {
  onMain([] {
    TabView tabs;
    tabs.adapter().setDelegate(nullptr);
    tabs.userSelects(1);
    EXPECT_EQ(tabs.adapter().indexOfSelectedItem(), 1);
    EXPECT_THAT(tabs.asked, ElementsAre());
  });
}

}  // namespace

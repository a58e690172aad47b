#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <optional>

#include "skins/appkit/Host.h"
#include "skins/appkit/MainThread.h"
#include "view/fakes/FakeConverter.h"

/// What mouse and keyboard do besides the clicks with which all other tests operate controls.
namespace {

using appkit_test::askMain;
using appkit_test::Host;
using appkit_test::onMain;
using namespace std::chrono_literals;

class MouseAndKeys : public testing::Test {
 protected:
  MouseAndKeys() : unit_(calls_) {
    onMain([this] { host_.emplace(&unit_); });
    appkit_test::runFor(1ms);
  }
  ~MouseAndKeys() override {
    onMain([this] { host_.reset(); });
  }

  NSButton* details() { return host_->outlet("auditionController.showDetailsButton"); }
  bool showsDetails() {
    return askMain([this] { return [details() state] == NSOnState; });
  }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_;
  std::optional<Host> host_;
};

TEST_F(MouseAndKeys, APressThatIsReleasedElsewhereDoesNothing) {
  onMain([this] { Host::drag(details(), NSMakePoint(6, 6), NSMakePoint(6, 90)); });
  appkit_test::runFor(1ms);
  EXPECT_FALSE(showsDetails());
  onMain([this] { Host::click(details()); });
  appkit_test::runFor(1ms);
  EXPECT_TRUE(showsDetails());
}

TEST_F(MouseAndKeys, AClickOnADisabledControlDoesNothing) {
  onMain([this] {
    [details() setEnabled:NO];
    Host::click(details());
  });
  appkit_test::runFor(1ms);
  EXPECT_FALSE(showsDetails());
}

TEST_F(MouseAndKeys, ABoundKeyReachesTheViewFromAClickedButton) {
  onMain([this] { Host::click(details()); });
  appkit_test::runFor(1ms);
  unit_.monitorSource = 0;
  onMain([this] { host_->typeKey(18, @"1"); });
  EXPECT_EQ(unit_.monitorSource, 1U);
}

}  // namespace

#include "view/fakes/ViewTest.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// Two views of one unit. They share the thread's event listeners, so advancing one of their clocks
/// delivers to both.
class TwoViews : public fakes::ViewTest {
 protected:
  void SetUp() override {
    bind();
    second = std::make_unique<fakes::BoundView>(record, unit);
    settle();
    forget();
  }
  fakes::FakePopUpButton& secondMenu() {
    return second->control<fakes::FakePopUpButton>("view.encoderPopup");
  }
  int secondSegment() {
    return second->control<fakes::FakeSegmentedControl>("auditionController.monitorControl")
        .selectedSegment();
  }

  std::unique_ptr<fakes::BoundView> second;
};

TEST_F(TwoViews, AChangeInOneShowsInTheOtherWithinFiftyMilliseconds) {
  view().setRate(3);
  view().monitorEncoder(false);
  advance(50);
  EXPECT_EQ(second->view().getEncoderName(), "AAC VBRC 32 Kbps");
  EXPECT_EQ(secondSegment(), 0);
  EXPECT_FALSE(second->view().isMonitoringEncoder());
}

TEST_F(TwoViews, TheOneThatMadeAChangeIsNotCalledBackForIt) {
  view().setRate(3);
  advance(100);
  EXPECT_EQ(menu().indexOfSelectedItem(), 0);
  EXPECT_EQ(record.calls.count("view.encoderPopup.selectItemAtIndex"), 1U);
}

TEST_F(TwoViews, NeitherWritesInReplyToTheOther) {
  view().setFormat(1);
  view().setStrategy(2);
  view().setQuality(80);
  view().monitorEncoder(false);
  view().setPerformingListeningTest(true);
  view().resetClippingAndPeaks();
  forget();
  advance(500);
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(TwoViews, ACustomSettingOfOneEntersTheHistoryOfTheOther) {
  menu().userPicks(menu().numberOfItems() - 1);
  bound->control<fakes::FakePopUpButton>("settingsController.bitratePopup").userPicks(4);
  settle();
  // The sheet of one view holds back only that view's menu.
  EXPECT_EQ(second->view().getEncoderName(), "AAC VBRC 40 Kbps");
  EXPECT_EQ(menu().numberOfItems(), 6);
  bound->control<fakes::FakeButton>("settingsController.OKButton").userClicks();
  settle();
  EXPECT_EQ(view().getEncoderName(), "AAC VBRC 40 Kbps");
}

TEST_F(TwoViews, ATestInOneHidesTheSwitchOfTheOther) {
  view().setPerformingListeningTest(true);
  settle();
  auto& control = second->control<fakes::FakeSegmentedControl>("auditionController.monitorControl");
  EXPECT_TRUE(control.isHidden());
  EXPECT_TRUE(second->view().isPerformingListeningTest());
  EXPECT_TRUE(secondMenu().isEnabled());
  EXPECT_FALSE(menu().isEnabled());
}

TEST_F(TwoViews, KeysReachTheirOwnViewOnly) {
  unit.monitorSource = 0;
  second->native->pressKey(18);
  EXPECT_THAT(record.notifications.objects(),
              testing::Each(static_cast<const void*>(&second->view())));
  EXPECT_THAT(writes(), ElementsAre("unit.setProperty 5301 = 1"));
}

TEST_F(TwoViews, OneGoesAndTheOtherGoesOn) {
  second->native->removeFromSuperview();
  second.reset();
  forget();
  unit.hostSetsParameter(velk::kConverterParam_RateQuality, 2);
  settle();
  EXPECT_EQ(view().getEncoderName(), "AAC VBRC 24 Kbps");
}

TEST_F(TwoViews, ViewsOfDifferentUnitsShareNothing) {
  fakes::FakeConverter otherUnit(record.calls);
  fakes::BoundView other(record, otherUnit);
  settle();
  forget();
  unit.hostSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  unit.hostSetsParameter(velk::kConverterParam_RateQuality, 2);
  settle();
  EXPECT_TRUE(other.view().isMonitoringEncoder());
  EXPECT_EQ(other.view().getEncoderName(), "Ondara Plus");
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include "skins/qt/Host.h"
#include "skins/qt/Mouse.h"
#include "skins/qt/QtInterfaceLoader.h"
#include "view/factory/Velk_AUAACConverterFactory.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/LogCapture.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class View : public testing::Test {
 protected:
  View() { host_.advance(120ms); }

  void clickDetails() {
    QTest::mouseClick(&host_.outlet("auditionController.showDetailsButton"), Qt::LeftButton);
  }
  /// The distance from the widget's lower edge to the view's.
  int roomBelow(const QWidget& widget) const {
    return host_.view()->height() - widget.mapTo(host_.view(), QPoint(0, widget.height())).y();
  }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
};

TEST_F(View, IsAWidgetOfAFixedSize) {
  EXPECT_EQ(host_.view()->size(), QSize(560, 195));
  host_.view()->resize(800, 600);
  EXPECT_EQ(host_.view()->size(), QSize(560, 195));
}

TEST_F(View, KeepsItsSizeInALayout) {
  auto* layout = new QVBoxLayout(&host_.window());
  layout->addWidget(host_.view());
  host_.window().resize(900, 700);
  QApplication::processEvents();
  EXPECT_EQ(host_.view()->size(), QSize(560, 195));
}

TEST_F(View, TellsTheHostOnlyOfItsOwnChanges) {
  std::vector<double> heights;
  host_.native().setFrameSizeObserver([&](ui::Size size) { heights.push_back(size.height); });
  host_.native().setFrameSize({560, 100});
  EXPECT_THAT(heights, IsEmpty());
  clickDetails();
  clickDetails();
  EXPECT_THAT(heights, ElementsAre(369, 195));
  host_.native().setFrameSize({600, 255});
  EXPECT_THAT(heights, ElementsAre(369, 195, 255, 255)) << "first the height, then the width";
  EXPECT_EQ(host_.native().frameSize(), (ui::Size{600, 255}));
}

TEST_F(View, TellsTheHostOfTheHeightOfEachPage) {
  std::vector<double> heights;
  host_.native().setFrameSizeObserver([&](ui::Size size) { heights.push_back(size.height); });
  auto& tabs = host_.outlet<QTabWidget>("view.tabView");
  qt_test::clickTab(tabs, 1);
  EXPECT_THAT(heights, ElementsAre(255));
  qt_test::clickTab(tabs, 0);
  EXPECT_THAT(heights, ElementsAre(255, 195));
}

TEST_F(View, AnswersAHostsTallRequestLaterWithItsOwnSize) {
  std::vector<ui::Size> sizes;
  host_.native().setFrameSizeObserver([&](ui::Size size) { sizes.push_back(size); });
  host_.native().setFrameSize({900, 256});
  EXPECT_THAT(sizes, IsEmpty());
  EXPECT_EQ(host_.view()->size(), QSize(560, 195));
  host_.advance(1ms);
  EXPECT_THAT(sizes, ElementsAre(ui::Size{560, 369}));
  EXPECT_EQ(host_.view()->size(), QSize(560, 369));
  host_.native().setFrameSize({900, 500});
  host_.advance(1ms);
  EXPECT_EQ(sizes.size(), 1U) << "it is as tall as it gets";
}

TEST_F(View, LetsTheObserverAskForASize) {
  int calls = 0;
  host_.native().setFrameSizeObserver([&](ui::Size) {
    ++calls;
    host_.native().setFrameSizeObserver({});
  });
  clickDetails();
  clickDetails();
  EXPECT_EQ(calls, 1);
}

TEST_F(View, KeepsTheHelpButtonAboveItsLowerEdge) {
  const QWidget& help = host_.outlet("auditionController.helpButton");
  EXPECT_EQ(roomBelow(help), 7);
  clickDetails();
  QApplication::processEvents();
  EXPECT_EQ(host_.view()->height(), 369);
  EXPECT_EQ(roomBelow(help), 7);
  clickDetails();
  EXPECT_EQ(roomBelow(help), 7);
}

TEST_F(View, OpensItsDetailsAlsoByTheirCaption) {
  QTest::mouseClick(&host_.outlet("auditionController.showDetailsText"), Qt::LeftButton);
  EXPECT_EQ(host_.view()->height(), 369);
  EXPECT_TRUE(host_.outlet<QAbstractButton>("auditionController.showDetailsButton").isChecked());
}

TEST_F(View, StaysAliveUnderAnotherParent) {
  QWidget other;
  host_.view()->setParent(&other);
  host_.view()->show();
  other.show();
  const std::size_t reads = calls_.count("unit.getProperty 5302");
  host_.advance(300ms);
  EXPECT_GT(calls_.count("unit.getProperty 5302"), reads);
  delete host_.view();
}

TEST_F(View, IsTornDownOnceWhenItLeavesItsParent) {
  host_.view()->setParent(nullptr);
  calls_.clear();
  host_.advance(300ms);
  unit_.hostSetsParameter(0, 1.0F);
  host_.advance(300ms);
  EXPECT_EQ(calls_.count("unit."), 0U);
  QWidget again;
  host_.view()->setParent(&again);
  host_.view()->setParent(nullptr);
  delete host_.view();
  EXPECT_EQ(calls_.count("unit."), 0U);
}

TEST_F(View, IsTornDownWithItsParent) {
  auto* box = new QWidget(&host_.window());
  host_.view()->setParent(box);
  delete box;
  EXPECT_EQ(host_.view(), nullptr);
  calls_.clear();
  unit_.hostSetsParameter(0, 1.0F);
  host_.advance(300ms);
  EXPECT_EQ(calls_.count("unit."), 0U);
}

TEST_F(View, ReportsNoSizeWhileItIsDestroyed) {
  clickDetails();
  bool told = false;
  host_.native().setFrameSizeObserver([&](ui::Size) { told = true; });
  delete host_.view();
  EXPECT_FALSE(told);
}

TEST_F(View, KeepsItsDetailsShownWhenItsWindowIsHiddenAndShownAgain) {
  clickDetails();
  host_.window().hide();
  host_.window().show();
  EXPECT_EQ(host_.view()->height(), 369);
}

TEST(UnparentedView, IsTornDownByItsDestructor) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  velk::Velk_AUAACConverterFactory factory(
      std::make_unique<ui::qt::QtInterfaceLoader>(qt_test::testEnvironment(VELK_BUNDLE_RESOURCES)));
  auto view = factory.uiViewForAudioUnit(&unit, {0, 0});
  ASSERT_NE(view, nullptr);
  EXPECT_FALSE(view->hasWindow());
  view.reset();
  calls.clear();
  unit.hostSetsParameter(0, 1.0F);
  QApplication::processEvents();
  EXPECT_EQ(calls.count("unit."), 0U);
}

TEST(TwoViews, HearNothingOfEachOther) {
  fakes::CallLog firstCalls;
  fakes::CallLog secondCalls;
  fakes::FakeConverter firstUnit(firstCalls);
  fakes::FakeConverter secondUnit(secondCalls);
  qt_test::Host first(firstUnit);
  qt_test::Host second(secondUnit);
  first.advance(120ms);
  second.advance(120ms);
  secondCalls.clear();
  QTest::mouseClick(&first.outlet("auditionController.resetButton"), Qt::LeftButton);
  QTest::mouseClick(&first.outlet("auditionController.showDetailsButton"), Qt::LeftButton);
  first.view()->setFocus();
  QTest::keyClick(first.view(), Qt::Key_1);
  EXPECT_EQ(firstUnit.monitorSource, 1U);
  EXPECT_EQ(secondUnit.monitorSource, 0U);
  EXPECT_EQ(secondCalls.count("unit.setProperty"), 0U);
  EXPECT_EQ(second.view()->height(), 195);
}

TEST(TwoViews, OfOneUnitFollowEachOther) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  qt_test::Host first(unit);
  qt_test::Host second(unit);
  first.advance(120ms);
  QTest::mouseClick(&first.named("monitorSourceSegment"), Qt::LeftButton);
  second.advance(120ms);
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(second.named("monitorSourceSegment")).isChecked());
}

TEST(Action, ThatFailsIsLoggedAndGoesNoFurther) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const fakes::LogCapture log(calls);
  qt_test::Host host(unit);
  host.advance(120ms);
  unit.failAlways(fakes::UnitCall::SetParameter, 0, -10878);
  auto& menu = host.outlet<QComboBox>("view.encoderPopup");
  Q_EMIT menu.activated(menu.count() - 1);
  auto& type = host.outlet<QComboBox>("settingsController.typePopup");
  EXPECT_NO_THROW(Q_EMIT type.activated(1));
  EXPECT_THAT(log.lines(), testing::Not(IsEmpty()));
}

}  // namespace

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "host/app/TransportBar.h"

using host::app::PositionSlider;
using host::app::TransportBar;

namespace {

class Transport : public testing::Test {
 protected:
  Transport() {
    bar_.setFixedWidth(560);
    bar_.setTransportEnabled(true);
    bar_.setLength(100000);
    bar_.show();
  }
  PositionSlider& slider() { return *bar_.findChild<PositionSlider*>(); }
  QPoint at(double part) {
    return {static_cast<int>(part * slider().width()), slider().height() / 2};
  }
  bool shows(const QString& text) {
    for (const auto* const label : bar_.findChildren<QLabel*>()) {
      if (label->text() == text) return true;
    }
    return false;
  }

  TransportBar bar_;
};

TEST(TimeText, HasHoursOnlyWhereTheyAreNeeded) {
  EXPECT_EQ(host::app::timeText(0), "0:00");
  EXPECT_EQ(host::app::timeText(999), "0:00");
  EXPECT_EQ(host::app::timeText(61000), "1:01");
  EXPECT_EQ(host::app::timeText(3599999), "59:59");
  EXPECT_EQ(host::app::timeText(3600000 + 2 * 60000 + 45000), "1:02:45");
}

TEST_F(Transport, ShowsWhereItIsAndHowLongItTakes) {
  bar_.setPosition(65000);
  EXPECT_TRUE(shows("1:05"));
  EXPECT_TRUE(shows("1:40"));
}

TEST_F(Transport, GoesWhereItIsClicked) {
  QSignalSpy chosen(&bar_, &TransportBar::positionChosen);
  QTest::mouseClick(&slider(), Qt::LeftButton, {}, at(0.5));
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_NEAR(chosen[0][0].toInt(), 50000, 1000);
  QTest::mouseClick(&slider(), Qt::LeftButton, {}, at(0));
  EXPECT_EQ(chosen[1][0].toInt(), 0);
  QTest::mouseClick(&slider(), Qt::LeftButton, {}, QPoint(slider().width() - 1, 5));
  EXPECT_EQ(chosen[2][0].toInt(), 100000);
}

TEST_F(Transport, GoesOnceWhenTheDragEndsAndDoesNotFollowThePlayerMeanwhile) {
  QSignalSpy chosen(&bar_, &TransportBar::positionChosen);
  QTest::mousePress(&slider(), Qt::LeftButton, {}, at(0.2));
  QTest::mouseMove(&slider(), at(0.6));
  bar_.setPosition(1000);
  EXPECT_NEAR(slider().sliderPosition(), 60000, 1500);
  EXPECT_EQ(chosen.count(), 0);
  QTest::mouseRelease(&slider(), Qt::LeftButton, {}, at(0.75));
  ASSERT_EQ(chosen.count(), 1);
  bar_.setPosition(1000);
  EXPECT_EQ(slider().value(), 1000);
}

TEST_F(Transport, GoesBySecondsOnKeys) {
  QSignalSpy chosen(&bar_, &TransportBar::positionChosen);
  bar_.setPosition(50000);
  QTest::keyClick(&slider(), Qt::Key_Right);
  QTest::keyClick(&slider(), Qt::Key_PageUp);
  ASSERT_EQ(chosen.count(), 2);
  EXPECT_EQ(chosen[0][0].toInt(), 51000);
  EXPECT_EQ(chosen[1][0].toInt(), 56000);
}

TEST_F(Transport, NeverAsksForAPlaceByItself) {
  QSignalSpy chosen(&bar_, &TransportBar::positionChosen);
  bar_.setPosition(70000);
  bar_.setLength(50000);
  bar_.setLength(200000);
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(Transport, SaysWhatItsButtonDoes) {
  auto* const button = bar_.findChild<host::app::PlayButton*>();
  EXPECT_EQ(button->accessibleName(), "Play");
  bar_.setPlaying(true);
  EXPECT_EQ(button->accessibleName(), "Pause");
  QSignalSpy clicked(&bar_, &TransportBar::playClicked);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(Transport, StaysAsWideWhateverIsPlayedToWhatever) {
  bar_.setFileName(QString(300, 'w'));
  bar_.setDeviceName(QString(300, 'w'));
  EXPECT_LE(bar_.minimumSizeHint().width(), 560);
}

}  // namespace

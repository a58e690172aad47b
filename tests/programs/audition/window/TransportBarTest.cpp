#include <gtest/gtest.h>

#include <QLabel>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>

#include "programs/audition/window/TransportBar.h"

using host::audition::TransportBar;

namespace {

constexpr std::uint32_t kRate = 48000;

class Transport : public testing::Test {
 protected:
  Transport() {
    QLocale::setDefault(QLocale::c());
    bar_.setFixedWidth(560);
    bar_.setTransportEnabled(true);
    bar_.show();
  }
  bool shows(const QString& text) {
    for (const auto* const label : bar_.findChildren<QLabel*>()) {
      if (label->text().contains(text)) return true;
    }
    for (const auto* const button : bar_.findChildren<QAbstractButton*>()) {
      if (button->text().contains(text)) return true;
    }
    return false;
  }
  QAbstractButton* loopButton() {
    for (auto* const button : bar_.findChildren<QAbstractButton*>()) {
      if (button->text().startsWith("Loop")) return button;
    }
    return nullptr;
  }

  TransportBar bar_;
};

TEST_F(Transport, ShowsWhereItIsAndHowLongItTakes) {
  bar_.showTime(65 * kRate + 12345, 100 * kRate, kRate);
  EXPECT_TRUE(shows("1:05.257"));
  EXPECT_TRUE(shows("1:40.000"));
}

TEST_F(Transport, ShowsTheTimeThatIsLeftAfterAClickAndBack) {
  bar_.showTime(65 * kRate, 100 * kRate, kRate);
  auto* const time = bar_.findChild<host::audition::TimeDisplay*>();
  EXPECT_EQ(time->accessibleName(), "Elapsed time");
  QTest::mouseClick(time, Qt::LeftButton);
  EXPECT_EQ(time->text(), QString::fromUtf8("\u22120:35.000"));
  EXPECT_EQ(time->accessibleName(), "Remaining time");
  QTest::mouseClick(time, Qt::LeftButton);
  EXPECT_EQ(time->text(), "1:05.000");
}

TEST_F(Transport, OffersTheLoopThatThereIs) {
  QSignalSpy toggled(&bar_, &TransportBar::loopToggled);
  bar_.setLoop(std::nullopt, false, kRate);
  EXPECT_FALSE(loopButton()->isEnabled());
  bar_.setLoop(host::LoopRange{10 * kRate, 12 * kRate + 24}, true, kRate);
  EXPECT_EQ(loopButton()->text(), "Loop 0:02.000");
  EXPECT_TRUE(loopButton()->toolTip().contains("0:10.000"));
  EXPECT_TRUE(loopButton()->isChecked());
  QTest::mouseClick(loopButton(), Qt::LeftButton);
  EXPECT_EQ(toggled.count(), 1);
  bar_.setLoop(host::LoopRange{10 * kRate, 12 * kRate + 24}, false, kRate);
  EXPECT_FALSE(loopButton()->isChecked());
}

TEST_F(Transport, TellsHowFarTheAnalysisHasCome) {
  using host::Analysis;
  auto& indicator = bar_.analysis();
  QSignalSpy cancelled(&indicator, &host::audition::AnalysisIndicator::cancelled);
  QSignalSpy restarted(&indicator, &host::audition::AnalysisIndicator::restarted);
  auto* const button = indicator.findChild<QAbstractButton*>();
  indicator.showState({Analysis::Step::Waveform, 0.999, {}, 0});
  EXPECT_TRUE(shows("Reading: 99 %"));
  indicator.showState({Analysis::Step::Encoded, 0.25, {}, 0});
  EXPECT_TRUE(shows("Analysing: 25 %"));
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(cancelled.count(), 1);
  indicator.showState({Analysis::Step::Cancelled, 0, {}, 0});
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(restarted.count(), 1);
  indicator.showState({Analysis::Step::Done, 1, {}, 57});
  EXPECT_TRUE(shows("Encoded overs: 57"));
  EXPECT_FALSE(button->isVisible());
  indicator.showState({Analysis::Step::Failed, 0, "the file is gone", 0});
  EXPECT_TRUE(button->isVisible());
  EXPECT_TRUE(shows("failed"));
}

TEST_F(Transport, SaysWhatItsButtonDoes) {
  auto* const button = bar_.findChild<host::audition::PlayButton*>();
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

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <vector>

#include "programs/audition/waveform/WaveformPicture.h"
#include "programs/audition/waveform/WaveformView.h"

using host::LoopRange;
using host::SharedOverview;
using host::Signal;
using host::audition::WaveformLanes;
using host::audition::WaveformView;

namespace {

constexpr std::int64_t kLength = 560000;
constexpr int kMiddle = WaveformLanes::kWaveTop + 20;

/// A waveform with a thousand frames per pixel: a loud half and a quiet one.
class Waveform : public testing::Test {
 protected:
  Waveform() {
    QLocale::setDefault(QLocale::c());
    std::vector<float> samples(2 * kLength);
    for (std::size_t i = 0; i < samples.size(); ++i) {
      samples[i] = (i < samples.size() / 2 ? 0.9F : 0.1F) * (i % 4 < 2 ? 1.0F : -1.0F);
    }
    overview_->append(samples.data(), kLength);
    view_.setFixedWidth(560);
    view_.setFile(overview_, {48000, 2});
    show(0);
    view_.show();
  }
  void show(std::int64_t position) { view_.refresh(overview_, kLength, position); }
  QImage picture() {
    QCoreApplication::processEvents();
    return view_.grab().toImage();
  }
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(&view_, Qt::LeftButton, {}, from);
    QTest::mouseMove(&view_, (from + to) / 2);
    QTest::mouseMove(&view_, to);
    QTest::mouseRelease(&view_, Qt::LeftButton, {}, to);
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&view_, key, modifiers);
  }
  LoopRange lastLoop() {
    const auto last = loops_.takeLast();
    return {last[0].toLongLong(), last[1].toLongLong()};
  }
  void turnWheel(QPoint at, QPoint angle) {
    QWheelEvent event(at, view_.mapToGlobal(at), {}, angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view_, &event);
  }

  std::shared_ptr<SharedOverview> overview_ = std::make_shared<SharedOverview>(2);
  WaveformView view_;
  QSignalSpy places_{&view_, &WaveformView::positionChosen};
  QSignalSpy loops_{&view_, &WaveformView::loopChosen};
};

TEST_F(Waveform, DrawsWhatIsLoudHigherThanWhatIsQuiet) {
  const auto image = picture();
  const int high = WaveformLanes::kWaveTop + 4;
  EXPECT_NE(image.pixel(100, high), image.pixel(400, high));
}

TEST_F(Waveform, MarksOversOfTheSourceAboveAndOfTheEncodedSignalBelowInOtherColours) {
  const auto before = picture();
  overview_->addOvers(Signal::Source, 0, 200500, 1);
  overview_->addOvers(Signal::Encoded, 1, 300500, 1);
  show(0);
  const auto after = picture();
  const int above = WaveformLanes::kWaveTop - 4;
  const int below = WaveformLanes::kWaveBottom + 4;
  EXPECT_EQ(QColor(after.pixel(200, above)),
            host::audition::markColor(Signal::Source, view_.palette()));
  EXPECT_EQ(QColor(after.pixel(300, below)),
            host::audition::markColor(Signal::Encoded, view_.palette()));
  EXPECT_EQ(after.pixel(200, below), before.pixel(200, below));
  EXPECT_EQ(after.pixel(300, above), before.pixel(300, above));
}

TEST_F(Waveform, ShowsThePlaceThatSounds) {
  const auto before = picture();
  show(280000);
  const auto after = picture();
  EXPECT_NE(after.pixel(280, 3), before.pixel(280, 3));
  EXPECT_EQ(after.pixel(270, 3), before.pixel(270, 3));
}

TEST_F(Waveform, RedrawsOnlyWhenSomethingHasChanged) {
  picture();
  const auto before = picture();
  show(0);
  EXPECT_EQ(picture(), before);
}

TEST_F(Waveform, GoesWhereItIsClicked) {
  QTest::mouseClick(&view_, Qt::LeftButton, {}, QPoint(140, kMiddle));
  ASSERT_EQ(places_.count(), 1);
  EXPECT_EQ(places_[0][0].toLongLong(), 140000);
  EXPECT_EQ(loops_.count(), 0);
}

TEST_F(Waveform, SetsALoopByDragging) {
  drag({400, kMiddle}, {100, kMiddle});
  ASSERT_EQ(loops_.count(), 1);
  EXPECT_EQ(lastLoop(), (LoopRange{100000, 400000}));
  EXPECT_EQ(places_.count(), 0);
}

TEST_F(Waveform, MovesAnEdgeOfTheLoop) {
  view_.setLoop(LoopRange{100000, 300000}, true);
  drag({102, kMiddle}, {52, kMiddle});
  EXPECT_EQ(lastLoop(), (LoopRange{52000, 300000}));
  drag({299, kMiddle}, {400, kMiddle});
  EXPECT_EQ(lastLoop(), (LoopRange{100000, 400000}));
}

TEST_F(Waveform, MovesTheWholeLoopByItsLane) {
  view_.setLoop(LoopRange{100000, 300000}, true);
  drag({200, 5}, {250, 5});
  EXPECT_EQ(lastLoop(), (LoopRange{150000, 350000}));
  // Below the lane, dragging draws another loop.
  drag({200, kMiddle}, {250, kMiddle});
  EXPECT_EQ(lastLoop(), (LoopRange{200000, 250000}));
}

TEST_F(Waveform, KeepsAMiddleToGrabInAVeryShortLoop) {
  view_.setLoop(LoopRange{100000, 104000}, true);
  drag({102, 5}, {202, 5});
  EXPECT_EQ(lastLoop(), (LoopRange{200000, 204000}));
}

TEST_F(Waveform, ForgetsACancelledDrag) {
  QTest::mousePress(&view_, Qt::LeftButton, {}, QPoint(100, kMiddle));
  QTest::mouseMove(&view_, QPoint(300, kMiddle));
  key(Qt::Key_Escape);
  QTest::mouseRelease(&view_, Qt::LeftButton, {}, QPoint(300, kMiddle));
  EXPECT_EQ(loops_.count() + places_.count(), 0);
}

TEST_F(Waveform, MovesByKeys) {
  show(280000);
  const auto place = [&] { return places_.takeLast()[0].toLongLong(); };
  key(Qt::Key_Right);
  EXPECT_EQ(place(), 285600);
  key(Qt::Key_Left);
  EXPECT_EQ(place(), 274400);
  key(Qt::Key_PageDown);
  EXPECT_EQ(place(), 392000);
  key(Qt::Key_Home);
  EXPECT_EQ(place(), 0);
  key(Qt::Key_End);
  EXPECT_EQ(place(), kLength);
}

TEST_F(Waveform, SetsTheLoopByKeys) {
  show(280000);
  key(Qt::Key_I);
  EXPECT_EQ(lastLoop(), (LoopRange{280000, kLength}));
  key(Qt::Key_BracketRight);
  EXPECT_EQ(lastLoop(), (LoopRange{0, 280000}));
  view_.setLoop(LoopRange{100000, 300000}, true);
  key(Qt::Key_BracketLeft);
  EXPECT_EQ(lastLoop(), (LoopRange{280000, 300000}));
  key(Qt::Key_O);
  EXPECT_EQ(lastLoop(), (LoopRange{100000, 280000}));
  key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(lastLoop(), (LoopRange{105600, 305600}));
  key(Qt::Key_Delete);
  EXPECT_EQ(lastLoop(), (LoopRange{0, 0}));
}

TEST_F(Waveform, DrawsALoopWithShiftAndArrows) {
  show(280000);
  QTest::keyPress(&view_, Qt::Key_Shift, Qt::ShiftModifier);
  for (int i = 0; i < 3; ++i) {
    // While Shift is held.
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::ShiftModifier);
    QCoreApplication::sendEvent(&view_, &press);
  }
  EXPECT_EQ(loops_.count(), 0);
  QTest::keyRelease(&view_, Qt::Key_Shift);
  ASSERT_EQ(loops_.count(), 1);
  EXPECT_EQ(lastLoop(), (LoopRange{280000, 280000 + 3 * 5600}));
}

TEST_F(Waveform, SwitchesTheLoopByAKey) {
  QSignalSpy toggled(&view_, &WaveformView::loopToggled);
  key(Qt::Key_L);
  EXPECT_EQ(toggled.count(), 1);
}

TEST_F(Waveform, LeavesTheKeysOfTheConvertersViewAlone) {
  class Parent : public QWidget {
   public:
    void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
    std::vector<int> keys;
  };
  Parent parent;
  WaveformView inside(&parent);
  inside.setFile(overview_, {48000, 2});
  inside.refresh(overview_, kLength, 0);
  const std::vector<int> bound = {Qt::Key_1, Qt::Key_2, Qt::Key_S,
                                  Qt::Key_A, Qt::Key_B, Qt::Key_Backspace};
  for (const auto each : bound) QTest::keyClick(&inside, static_cast<Qt::Key>(each));
  EXPECT_EQ(parent.keys, bound);
}

TEST_F(Waveform, ZoomsAndScrollsByTheWheel) {
  turnWheel({280, kMiddle}, {0, 120});
  EXPECT_EQ(view_.range().span(), 448000);
  EXPECT_EQ(view_.range().start(), 56000);
  turnWheel({280, kMiddle}, {120, 0});
  EXPECT_EQ(view_.range().start(), 0);
  for (int i = 0; i < 9; ++i) turnWheel({280, kMiddle}, {0, -120});
  EXPECT_TRUE(view_.range().isAll());
}

TEST_F(Waveform, GoesToPlacesAndMovesEdgesWhereItIsZoomed) {
  turnWheel({0, kMiddle}, {0, 120});
  QTest::mouseClick(&view_, Qt::LeftButton, {}, QPoint(280, kMiddle));
  EXPECT_EQ(places_[0][0].toLongLong(), 224000);
}

TEST_F(Waveform, ScrollsWhilePlaying) {
  turnWheel({0, kMiddle}, {0, 120});
  show(500000);
  EXPECT_EQ(view_.range().start(), 0);
  view_.setFollowing(true);
  show(500001);
  EXPECT_EQ(view_.range().end(), kLength);
}

TEST_F(Waveform, ShowsAllOfAnotherFile) {
  turnWheel({0, kMiddle}, {0, 120});
  view_.setLoop(LoopRange{100000, 300000}, true);
  view_.setFile(overview_, {48000, 2});
  show(0);
  EXPECT_TRUE(view_.range().isAll());
  EXPECT_EQ(view_.valueText(), "0:00.000 of 0:11.666");
}

TEST_F(Waveform, DoesNothingWithoutAFile) {
  view_.setFile(nullptr, {});
  view_.refresh(nullptr, 0, 0);
  picture();
  QTest::mouseClick(&view_, Qt::LeftButton, {}, QPoint(140, kMiddle));
  key(Qt::Key_I);
  key(Qt::Key_Right);
  EXPECT_EQ(places_.count() + loops_.count(), 0);
}

TEST_F(Waveform, IsASliderToAssistivePrograms) {
  show(240000);
  view_.setLoop(LoopRange{48000, 96000}, false);
  auto* const accessible = QAccessible::queryAccessibleInterface(&view_);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Slider);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Waveform");
  EXPECT_EQ(accessible->text(QAccessible::Value),
            "0:05.000 of 0:11.666; loop from 0:01.000 to 0:02.000, switched off");
  auto* const value = accessible->valueInterface();
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->currentValue().toDouble(), 5);
  value->setCurrentValue(2.5);
  ASSERT_EQ(places_.count(), 1);
  EXPECT_EQ(places_[0][0].toLongLong(), 120000);
}

TEST_F(Waveform, LooksSharpOnScreensOfDoubleDensityAndReadableInTheDark) {
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 32, 36));
  dark.setColor(QPalette::Text, Qt::white);
  const auto picture =
      host::audition::waveformPicture(*overview_, view_.range(), 560, 2, dark).toImage();
  EXPECT_EQ(picture.size(), QSize(1120, 2 * WaveformLanes::kHeight));
  EXPECT_EQ(QColor(picture.pixel(0, 0)), QColor(30, 32, 36));
  EXPECT_NE(host::audition::markColor(Signal::Source, dark),
            host::audition::markColor(Signal::Source, QPalette()));
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QTest>
#include <set>

#include "skins/qt/Host.h"
#include "skins/qt/Lamp.h"
#include "skins/qt/Mouse.h"
#include "view/fakes/FakeConverter.h"

namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr auto kPoll = 75ms;

/// Counts paint events, and records which fields and lamps are painted.
class Paints final : public QObject {
 public:
  Paints() { QApplication::instance()->installEventFilter(this); }

  int count() const { return count_; }
  /// The painted fields and lamps, by object name. Their parents are repainted with them.
  const std::set<std::string>& readings() const { return readings_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      ++count_;
      if (qobject_cast<QLabel*>(watched) != nullptr ||
          dynamic_cast<ui::qt::Lamp*>(watched) != nullptr) {
        readings_.insert(watched->objectName().toStdString());
      }
    }
    return false;
  }

 private:
  int count_ = 0;
  std::set<std::string> readings_;
};

class Repaint : public testing::Test {
 protected:
  Repaint() {
    qt_test::clickOn(host_.outlet("auditionController.showDetailsButton"));
    unit_.statistics.fill({-1.0F, 1.5F, 0, 12});
    // A view that has just been shown is still being painted.
    for (int turn = 0; turn < 10; ++turn) {
      host_.advance(kPoll);
    }
    calls_.clear();
  }
  void poll(int times) {
    for (int turn = 0; turn < times; ++turn) {
      host_.advance(kPoll);
    }
  }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
};

TEST_F(Repaint, HappensToNoWidgetOnASteadySignal) {
  const Paints paints;
  poll(40);
  EXPECT_EQ(calls_.count("unit.getProperty 5302"), 2U * 40U) << "a poll reads twice";
  EXPECT_EQ(paints.count(), 0);
}

TEST_F(Repaint, HappensToNoWidgetWhenTheSignalFallsOrCannotBeRead) {
  const Paints paints;
  unit_.statistics.fill({-20.0F, -19.0F, 0, 0});
  poll(10);
  unit_.failAlways(fakes::UnitCall::GetProperty, velk::kConverterProperty_PeakStats, -10879);
  poll(10);
  EXPECT_EQ(paints.count(), 0);
}

TEST_F(Repaint, HappensToTheReadingThatRises) {
  const Paints paints;
  unit_.statistics[velk::kPeakStatsSlot_EncodedRight].mSamplePeak = 0.3F;
  poll(2);
  EXPECT_THAT(paints.readings(), UnorderedElementsAre("esrField", "esrIndicator"));
}

TEST_F(Repaint, HappensToNothingForAPeakThatReadsTheSame) {
  const Paints paints;
  unit_.statistics[velk::kPeakStatsSlot_SourceLeft].mSamplePeak = -0.99F;
  poll(2);
  EXPECT_THAT(paints.readings(), IsEmpty());
}

}  // namespace

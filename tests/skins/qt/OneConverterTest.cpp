#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QStackedWidget>
#include <initializer_list>
#include <map>
#include <memory>

#include "audio_unit/AUEventListener.h"
#include "audio_unit/AudioUnitProperties.h"
#include "audio_unit/RunLoop.h"
#include "converter/unit/ConverterUnit.h"
#include "skins/qt/Host.h"
#include "skins/qt/Mouse.h"

/// Two views of one real converter, each in a window of its own.
namespace {

using namespace std::chrono_literals;

/// A change made elsewhere must be visible after this time.
constexpr auto kLatest = 50ms;
constexpr int kFirstCustomItem = 5;

/// Counts every change of what the views listen to, whoever makes it.
class Changes {
 public:
  explicit Changes(audio_unit::Unit& unit) {
    AUEventListenerCreate(&count, this, CFRunLoopGetCurrent(), kCFRunLoopCommonModes, 0, 0,
                          &listener_);
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_ParameterValueChange;
    for (const AudioUnitParameterID parameter :
         {velk::kConverterParam_Format, velk::kConverterParam_Strategy,
          velk::kConverterParam_RateQuality}) {
      event.mArgument.mParameter = {&unit, parameter, kAudioUnitScope_Global, 0};
      AUEventListenerAddEventType(listener_, nullptr, &event);
    }
    event.mEventType = kAudioUnitEvent_PropertyChange;
    for (const AudioUnitPropertyID property :
         {velk::kConverterProperty_MonitorSource, velk::kConverterProperty_ResetPeakStats,
          velk::kConverterProperty_ListeningTestActive}) {
      event.mArgument.mProperty = {&unit, property, kAudioUnitScope_Global, 0};
      AUEventListenerAddEventType(listener_, nullptr, &event);
    }
  }
  Changes(const Changes&) = delete;
  Changes& operator=(const Changes&) = delete;
  ~Changes() { AUListenerDispose(listener_); }

  /// The number of changes of each parameter and property, by identifier.
  const std::map<UInt32, int>& counts() const { return counts_; }

 private:
  static void count(void* self, void*, const AudioUnitEvent* event, UInt64,
                    AudioUnitParameterValue) {
    const UInt32 changed = event->mEventType == kAudioUnitEvent_PropertyChange
                               ? event->mArgument.mProperty.mPropertyID
                               : event->mArgument.mParameter.mParameterID;
    ++static_cast<Changes*>(self)->counts_[changed];
  }

  AUEventListenerRef listener_ = nullptr;
  std::map<UInt32, int> counts_;
};

class OneConverter : public testing::Test {
 protected:
  OneConverter() : unit_(converter::ConverterUnit::make({})), loop_(log_) {}

  void openViews() {
    qt_test::HostOptions options;
    options.runLoop = &loop_;
    first_ = std::make_unique<qt_test::Host>(*unit_, options);
    second_ = std::make_unique<qt_test::Host>(*unit_, options);
    advance(200ms);
  }
  void advance(std::chrono::milliseconds time) {
    loop_.advance(time);
    QApplication::processEvents();
  }
  void settle() { advance(200ms); }

  void outsideSets(AudioUnitParameterID parameter, float value) {
    const AudioUnitParameter address = {unit_.get(), parameter, kAudioUnitScope_Global, 0};
    ASSERT_EQ(AUParameterSet(nullptr, nullptr, &address, value, 0), noErr);
  }
  void outsideSets(float format, float strategy, float rateQuality) {
    outsideSets(velk::kConverterParam_Format, format);
    outsideSets(velk::kConverterParam_Strategy, strategy);
    outsideSets(velk::kConverterParam_RateQuality, rateQuality);
  }
  void outsideSetsProperty(AudioUnitPropertyID property, UInt32 value) {
    ASSERT_EQ(AudioUnitSetProperty(unit_.get(), property, kAudioUnitScope_Global, 0, &value,
                                   sizeof(value)),
              noErr);
  }

  static QComboBox& menu(qt_test::Host& host) {
    return host.outlet<QComboBox>("view.encoderPopup");
  }
  static QComboBox& popUp(qt_test::Host& host, const std::string& name) {
    return host.outlet<QComboBox>("settingsController." + name);
  }
  static QSlider& slider(qt_test::Host& host) {
    return host.outlet<QSlider>("settingsController.qualitySlider");
  }
  static void openSheet(qt_test::Host& host) {
    qt_test::pickItem(menu(host), menu(host).count() - 1);
    ASSERT_TRUE(host.outlet("settingsController.settingsSheet").isVisible());
  }
  static void press(qt_test::Host& host, const char* outlet) {
    qt_test::clickOn(host.outlet(outlet));
  }
  static int page(qt_test::Host& host) {
    return host.outlet<QStackedWidget>("settingsController.rateQualityTabView").currentIndex();
  }

  std::unique_ptr<converter::ConverterUnit> unit_;
  fakes::CallLog log_;
  fakes::FakeRunLoop loop_;
  std::unique_ptr<qt_test::Host> first_;
  std::unique_ptr<qt_test::Host> second_;
};

TEST_F(OneConverter, ShowsAPresetThatIsPickedInOneViewInBothWithinFiftyMilliseconds) {
  openViews();
  for (const int preset : {1, 2, 3, 0}) {
    qt_test::pickItem(menu(*first_), preset);
    advance(kLatest);
    EXPECT_EQ(menu(*first_).currentIndex(), preset);
    EXPECT_EQ(menu(*second_).currentIndex(), preset);
    EXPECT_EQ(menu(*second_).count(), 6);
  }
}

TEST_F(OneConverter, ShowsACustomEntryThatIsPickedInOneViewInTheOtherWithinFiftyMilliseconds) {
  outsideSets(0, 0, 4);
  openViews();
  outsideSets(0, 2, 90);
  settle();
  ASSERT_EQ(menu(*first_).itemText(kFirstCustomItem), "AAC VBR Quality: 90");
  ASSERT_EQ(menu(*first_).itemText(kFirstCustomItem + 1), "AAC ABR 40 Kbps");
  qt_test::pickItem(menu(*first_), kFirstCustomItem + 1);
  advance(kLatest);
  EXPECT_EQ(menu(*second_).currentText(), "AAC ABR 40 Kbps");
  // Three parameters are written one after the other; the menu follows the last.
  settle();
  EXPECT_EQ(menu(*first_).currentText(), "AAC ABR 40 Kbps");
  EXPECT_EQ(menu(*first_).count(), 8);
  EXPECT_EQ(menu(*second_).count(), 8);
}

TEST_F(OneConverter, ShowsTheSheetOfOneViewInTheMenuOfTheOtherWithinFiftyMilliseconds) {
  openViews();
  openSheet(*first_);
  qt_test::pickItem(popUp(*first_, "bitratePopup"), 4);
  advance(kLatest);
  EXPECT_EQ(menu(*second_).currentText(), "AAC VBRC 40 Kbps");
  EXPECT_EQ(menu(*first_).count(), 6) << "its own menu waits until the sheet closes";
  press(*first_, "settingsController.cancelButton");
  advance(kLatest);
  EXPECT_EQ(menu(*second_).currentIndex(), 0);
  EXPECT_EQ(menu(*first_).currentIndex(), 0);
}

TEST_F(OneConverter, ShowsTheSheetOfOneViewInTheSheetOfTheOtherWithinFiftyMilliseconds) {
  openViews();
  openSheet(*first_);
  openSheet(*second_);
  qt_test::pickItem(popUp(*first_, "strategyPopup"), 2);
  advance(kLatest);
  for (qt_test::Host* host : {first_.get(), second_.get()}) {
    EXPECT_EQ(popUp(*host, "strategyPopup").currentIndex(), 2);
    EXPECT_EQ(page(*host), 1);
  }
  settle();
  qt_test::clickAt(slider(*first_), 100);
  advance(kLatest);
  EXPECT_EQ(slider(*second_).value(), 100);
  settle();
  qt_test::pickItem(popUp(*second_, "typePopup"), 1);
  advance(kLatest);
  EXPECT_EQ(popUp(*first_, "typePopup").currentIndex(), 1);
  EXPECT_FALSE(popUp(*first_, "strategyPopup").isEnabled());
  EXPECT_FALSE(popUp(*second_, "strategyPopup").isEnabled());
}

TEST_F(OneConverter, ShowsAChangeFromOutsideInBothViewsWithinFiftyMilliseconds) {
  openViews();
  openSheet(*second_);
  outsideSets(velk::kConverterParam_RateQuality, 9);
  advance(kLatest);
  EXPECT_EQ(menu(*first_).currentText(), "AAC VBRC 96 Kbps");
  EXPECT_EQ(popUp(*second_, "bitratePopup").currentIndex(), 9);
  outsideSetsProperty(velk::kConverterProperty_MonitorSource, 1);
  advance(kLatest);
  for (qt_test::Host* host : {first_.get(), second_.get()}) {
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(host->named("monitorSourceSegment")).isChecked());
  }
}

TEST_F(OneConverter, HearsNothingFromViewsThatFollowIt) {
  const auto heardFrom = [this](int views) {
    first_.reset();
    second_.reset();
    outsideSets(0, 1, 14);
    outsideSetsProperty(velk::kConverterProperty_MonitorSource, 0);
    outsideSetsProperty(velk::kConverterProperty_ListeningTestActive, 0);
    if (views == 2) {
      openViews();
      openSheet(*second_);
    }
    settle();
    const Changes changes(*unit_);
    settle();
    for (const auto& [format, strategy, value] :
         std::initializer_list<std::array<float, 3>>{{0, 0, 3},
                                                     {0, 2, 90},
                                                     {0, 2, 5000},
                                                     {1, 1, 16},
                                                     {2, 0, 99},
                                                     {7, -1, -1},
                                                     {0, 1, 14}}) {
      outsideSets(format, strategy, value);
      settle();
    }
    for (const UInt32 value : {1U, 0U}) {
      outsideSetsProperty(velk::kConverterProperty_MonitorSource, value);
      settle();
      outsideSetsProperty(velk::kConverterProperty_ListeningTestActive, value);
      settle();
      outsideSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
      settle();
    }
    return changes.counts();
  };
  const std::map<UInt32, int> alone = heardFrom(0);
  EXPECT_EQ(alone.at(velk::kConverterParam_Format), 7);
  EXPECT_EQ(alone.at(velk::kConverterProperty_ResetPeakStats), 2);
  EXPECT_EQ(heardFrom(2), alone) << "a view wrote in reply to a change";
}

TEST_F(OneConverter, RefreshesAMenuAtMostOncePerFiftyMillisecondsInABurst) {
  outsideSets(0, 2, 0);
  openViews();
  // Every setting is new, so every refresh inserts an item.
  int refreshes = 0;
  QObject::connect(menu(*first_).model(), &QAbstractItemModel::rowsInserted,
                   [&refreshes] { ++refreshes; });
  for (int quality = 1; quality <= 1000; ++quality) {
    outsideSets(velk::kConverterParam_RateQuality, static_cast<float>(quality));
    advance(1ms);
  }
  EXPECT_LE(refreshes, 1000 / 50 + 1);
  EXPECT_GE(refreshes, 1000 / 50 - 1);
  settle();
  EXPECT_EQ(menu(*first_).currentText(), "AAC VBR Quality: 1000");
  EXPECT_EQ(menu(*second_).currentText(), "AAC VBR Quality: 1000");
  EXPECT_EQ(menu(*first_).count(), 16);

  refreshes = 0;
  for (int quality = 2000; quality < 3000; ++quality) {
    outsideSets(velk::kConverterParam_RateQuality, static_cast<float>(quality));
  }
  settle();
  EXPECT_EQ(refreshes, 1) << "all changes came at once";
  EXPECT_EQ(menu(*first_).currentText(), "AAC VBR Quality: 2999");
}

TEST_F(OneConverter, RefreshesAnOpenSheetAtMostOncePerFiftyMillisecondsInABurst) {
  outsideSets(0, 2, 0);
  openViews();
  openSheet(*first_);
  int refreshes = 0;
  QObject::connect(&slider(*first_), &QSlider::valueChanged, [&refreshes] { ++refreshes; });
  for (int change = 1; change <= 1000; ++change) {
    outsideSets(velk::kConverterParam_RateQuality, static_cast<float>(change % 127));
    advance(1ms);
  }
  EXPECT_LE(refreshes, 1000 / 50 + 1);
  EXPECT_GE(refreshes, 1000 / 50 - 1);
  settle();
  EXPECT_EQ(slider(*first_).value(), 1000 % 127);
}

}  // namespace

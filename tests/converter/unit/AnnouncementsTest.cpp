#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "Rig.h"
#include "audio_unit/RunLoop.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A listener like a view's, which records what it receives.
class Announcements : public testing::Test {
 public:
  Announcements() {
    AUEventListenerCreate(&Announcements::receive, this, &loop_, kCFRunLoopCommonModes, 0.05F,
                          0.05F, &listener_);
    for (AudioUnitParameterID id = 0; id < 3; ++id) {
      AudioUnitEvent event{kAudioUnitEvent_ParameterValueChange, {}};
      event.mArgument.mParameter = {&rig_.unit(), id, kAudioUnitScope_Global, 0};
      AUEventListenerAddEventType(listener_, this, &event);
    }
    for (const AudioUnitPropertyID id : std::initializer_list<AudioUnitPropertyID>{
             velk::kConverterProperty_MonitorSource, velk::kConverterProperty_ResetPeakStats,
             velk::kConverterProperty_ListeningTestActive, audio_unit::presentPresetProperty}) {
      AudioUnitEvent event{kAudioUnitEvent_PropertyChange, {}};
      event.mArgument.mProperty = {&rig_.unit(), id, kAudioUnitScope_Global, 0};
      AUEventListenerAddEventType(listener_, this, &event);
    }
  }
  Announcements(const Announcements&) = delete;
  Announcements& operator=(const Announcements&) = delete;
  ~Announcements() override { AUListenerDispose(listener_); }

 protected:
  OSStatus set(AudioUnitPropertyID id, UInt32 value, UInt32 size = sizeof(UInt32)) {
    return rig_.unit().setProperty(id, kAudioUnitScope_Global, 0, &value, size);
  }
  void write(AudioUnitParameterID id, float value, bool asListener = false) {
    const AudioUnitParameter parameter{&rig_.unit(), id, kAudioUnitScope_Global, 0};
    AUParameterSet(asListener ? listener_ : nullptr, asListener ? this : nullptr, &parameter, value,
                   0);
  }
  std::vector<std::string> heard() {
    now_ += std::chrono::seconds(1);
    loop_.pump(now_);
    return std::exchange(heard_, {});
  }

  Rig rig_;

 private:
  static void receive(void* self, void*, const AudioUnitEvent* event, UInt64, float value) {
    const bool isProperty = event->mEventType == kAudioUnitEvent_PropertyChange;
    static_cast<Announcements*>(self)->heard_.push_back(
        isProperty ? "property " + std::to_string(event->mArgument.mProperty.mPropertyID)
                   : "parameter " + std::to_string(event->mArgument.mParameter.mParameterID) +
                         " = " + std::to_string(static_cast<int>(value)));
  }

  audio_unit::RunLoop loop_;
  audio_unit::RunLoop::TimePoint now_{std::chrono::hours(1)};
  AUEventListenerRef listener_ = nullptr;
  std::vector<std::string> heard_;
};

TEST_F(Announcements, TellEveryWriteOfACustomPropertyInOrder) {
  set(velk::kConverterProperty_MonitorSource, 1);
  set(velk::kConverterProperty_ResetPeakStats, 1);
  set(velk::kConverterProperty_ListeningTestActive, 1);
  set(velk::kConverterProperty_MonitorSource, 0);
  EXPECT_THAT(heard(),
              ElementsAre("property 5301", "property 5303", "property 5304", "property 5301"));
}

TEST_F(Announcements, TellAWriteOfTheSameValueToo) {
  set(velk::kConverterProperty_MonitorSource, 0);
  set(velk::kConverterProperty_ListeningTestActive, 0);
  EXPECT_THAT(heard(), ElementsAre("property 5301", "property 5304"));
}

TEST_F(Announcements, LeaveOutAWriteThatFailed) {
  EXPECT_NE(set(velk::kConverterProperty_MonitorSource, 1, 2), noErr);
  EXPECT_NE(set(velk::kConverterProperty_PeakStats, 1), noErr);
  const AUPreset none{9, nullptr};
  EXPECT_NE(rig_.unit().setProperty(kAudioUnitProperty_PresentPreset, kAudioUnitScope_Global, 0,
                                    &none, sizeof none),
            noErr);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, TellAllThreeParametersOfAPreset) {
  rig_.setPreset(3);
  EXPECT_THAT(heard(),
              ElementsAre("parameter 0 = 1", "parameter 1 = 1", "parameter 2 = 16", "property 36"));
}

TEST_F(Announcements, TellTheRateOrQualityAfterAWriteOfFormatOrStrategyEvenToTheWriter) {
  write(velk::kConverterParam_Format, 1, true);
  EXPECT_THAT(heard(), ElementsAre("parameter 2 = 14"));
  write(velk::kConverterParam_Strategy, 2, true);
  EXPECT_THAT(heard(), ElementsAre("parameter 2 = 14"));
  write(velk::kConverterParam_RateQuality, 3, true);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Announcements, TellOthersTheWrittenParameterOnceAndTheRateOrQuality) {
  write(velk::kConverterParam_Strategy, 2);
  EXPECT_THAT(heard(), testing::UnorderedElementsAre("parameter 1 = 2", "parameter 2 = 14"));
  write(velk::kConverterParam_RateQuality, 100);
  EXPECT_THAT(heard(), ElementsAre("parameter 2 = 100"));
}

TEST_F(Announcements, LeaveOutRendering) {
  rig_.render(music(2, 10000, 44100));
  rig_.unit().reset();
  EXPECT_THAT(heard(), IsEmpty());
}

}  // namespace

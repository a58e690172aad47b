#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "Rig.h"
#include "audio_unit/RunLoop.h"
#include "converter/unit/AacConverter.h"

namespace {

constexpr AudioUnitScope kGlobal = kAudioUnitScope_Global;

TEST(Properties, ShowTheStreamFormatOnInputAndOutput) {
  Rig rig({.sampleRate = 88200, .channels = 1, .maximumFrames = 512});
  for (const AudioUnitScope scope : {kAudioUnitScope_Input, kAudioUnitScope_Output}) {
    AudioStreamBasicDescription format{};
    UInt32 size = sizeof format;
    ASSERT_EQ(rig.unit().getProperty(kAudioUnitProperty_StreamFormat, scope, 0, &format, size),
              noErr);
    EXPECT_EQ(size, 40U);
    EXPECT_EQ(format.mSampleRate, 88200);
    EXPECT_EQ(format.mChannelsPerFrame, 1U);
    EXPECT_EQ(format.mFormatID, kAudioFormatLinearPCM);
    EXPECT_EQ(format.mBitsPerChannel, 32U);
    EXPECT_EQ(format.mBytesPerFrame, 4U);
  }
}

TEST(Properties, ShowTheLargestBlock) {
  Rig rig({.sampleRate = 48000, .channels = 2, .maximumFrames = 777});
  EXPECT_EQ(rig.property(audio_unit::maximumFramesProperty), 777U);
}

TEST(Properties, KeepFlagsAsWritten) {
  Rig rig;
  for (const auto& flag :
       {velk::kConverterProperty_ListeningTestActive, velk::kConverterProperty_MonitorSource,
        audio_unit::offlineRenderProperty, converter::kConverterProperty_Metering}) {
    for (const UInt32 value : {0U, 1U, 7U, 0U}) {
      rig.setProperty(flag, value);
      EXPECT_EQ(rig.property(flag), value) << flag.id;
    }
  }
}

struct Reading {
  AudioUnitPropertyID id;
  AudioUnitScope scope;
  UInt32 size;
};

constexpr Reading kReadings[] = {
    {kAudioUnitProperty_ParameterInfo, kGlobal, sizeof(AudioUnitParameterInfo)},
    {kAudioUnitProperty_StreamFormat, kAudioUnitScope_Output, 40},
    {kAudioUnitProperty_Latency, kGlobal, 8},
    {kAudioUnitProperty_MaximumFramesPerSlice, kGlobal, 4},
    {kAudioUnitProperty_FactoryPresets, kGlobal, sizeof(void*)},
    {kAudioUnitProperty_PresentPreset, kGlobal, 16},
    {kAudioUnitProperty_OfflineRender, kGlobal, 4},
    {velk::kConverterProperty_MonitorSource, kGlobal, 4},
    {velk::kConverterProperty_PeakStats, kGlobal, 96},
    {velk::kConverterProperty_ListeningTestActive, kGlobal, 4},
    {converter::kConverterProperty_EffectiveSetting, kGlobal, 16},
    {converter::kConverterProperty_BitRate, kGlobal, 8},
    {converter::kConverterProperty_MissedFrames, kGlobal, 8},
    {converter::kConverterProperty_CodecFailures, kGlobal, 8},
    {converter::kConverterProperty_Metering, kGlobal, 4},
};

/// Every property that the unit declares, each at the first place where it is offered.
struct Declared {
  const converter::PropertyDeclaration& property;
  AudioUnitScope scope;
};

std::vector<Declared> declaredProperties() {
  std::vector<Declared> list;
  for (const auto& property : converter::AacConverter::properties()) {
    const bool isGlobal = property.place().check(kGlobal, 0) == noErr;
    list.push_back({property, isGlobal ? kGlobal : AudioUnitScope{kAudioUnitScope_Output}});
  }
  return list;
}

TEST(DeclaredProperties, AreThoseOfTheListBelowAndTheRequest) {
  std::vector<AudioUnitPropertyID> declared;
  for (const auto& [property, scope] : declaredProperties()) {
    declared.push_back(property.id());
    EXPECT_TRUE(property.isReadable() || property.isWritable());
  }
  std::vector<AudioUnitPropertyID> expected = {velk::kConverterProperty_ResetPeakStats};
  for (const Reading& reading : kReadings) expected.push_back(reading.id);
  EXPECT_THAT(declared, testing::UnorderedElementsAreArray(expected));
}

/// Counts the announcements of one property.
class PropertyListener {
 public:
  PropertyListener(converter::ConverterUnit& unit, AudioUnitPropertyID id) {
    AUEventListenerCreate(&PropertyListener::receive, this, &loop_, kCFRunLoopCommonModes, 0.05F,
                          0.05F, &listener_);
    AudioUnitEvent event{kAudioUnitEvent_PropertyChange, {}};
    event.mArgument.mProperty = {&unit, id, kGlobal, 0};
    AUEventListenerAddEventType(listener_, this, &event);
  }
  PropertyListener(const PropertyListener&) = delete;
  PropertyListener& operator=(const PropertyListener&) = delete;
  ~PropertyListener() { AUListenerDispose(listener_); }

  int heard() {
    loop_.pump(audio_unit::RunLoop::TimePoint(std::chrono::hours(1)));
    return heard_;
  }

 private:
  static void receive(void* self, void*, const AudioUnitEvent*, UInt64, float) {
    ++static_cast<PropertyListener*>(self)->heard_;
  }

  audio_unit::RunLoop loop_;
  AUEventListenerRef listener_ = nullptr;
  int heard_ = 0;
};

/// Gives back what a read has left to the reader.
void release(AudioUnitPropertyID id, const void* data) {
  if (id == audio_unit::factoryPresetsProperty) {
    CFArrayRef list = nullptr;
    std::memcpy(&list, data, sizeof list);
    CFRelease(list);
  } else if (id == audio_unit::presentPresetProperty) {
    AUPreset preset{};
    std::memcpy(&preset, data, sizeof preset);
    CFRelease(preset.presetName);
  }
}

/// What a read leaves of a buffer that was full of `filler`.
std::vector<unsigned char> bytesRead(Rig& rig, const Declared& declared, unsigned char filler) {
  std::vector<unsigned char> data(declared.property.size() + 1, filler);
  auto size = static_cast<UInt32>(data.size());
  EXPECT_EQ(rig.unit().getProperty(declared.property.id(), declared.scope, 0, data.data(), size),
            noErr);
  EXPECT_EQ(size, declared.property.size());
  release(declared.property.id(), data.data());
  return data;
}

TEST(DeclaredProperties, FillAllOfTheirDataAndNothingBehindIt) {
  Rig rig;
  for (const Declared& declared : declaredProperties()) {
    if (!declared.property.isReadable()) continue;
    SCOPED_TRACE(declared.property.id());
    const auto first = bytesRead(rig, declared, 0xa5);
    const auto second = bytesRead(rig, declared, 0x5a);
    for (std::size_t i = 0; i < first.size(); ++i) {
      const bool isLeftAlone = first[i] == 0xa5 && second[i] == 0x5a;
      EXPECT_EQ(isLeftAlone, i == declared.property.size()) << "byte " << i;
    }
  }
}

TEST(DeclaredProperties, TakeWhatIsWrittenIfTheyAreWritable) {
  Rig rig;
  for (const Declared& declared : declaredProperties()) {
    if (!declared.property.isWritable()) continue;
    SCOPED_TRACE(declared.property.id());
    // Each begins with a number, and a preset's is not the first one's.
    for (const unsigned char number : {'\2', '\1'}) {
      std::vector<unsigned char> data(declared.property.size());
      data[0] = number;
      ASSERT_EQ(rig.unit().setProperty(declared.property.id(), declared.scope, 0, data.data(),
                                       declared.property.size()),
                noErr);
      if (declared.property.isReadable()) {
        EXPECT_EQ(bytesRead(rig, declared, 0xa5)[0], number);
      }
    }
  }
}

TEST(DeclaredProperties, AreAnnouncedWhenTheyAreWritten) {
  Rig rig;
  for (const Declared& declared : declaredProperties()) {
    if (!declared.property.isWritable()) continue;
    SCOPED_TRACE(declared.property.id());
    PropertyListener listener(rig.unit(), declared.property.id());
    const std::vector<unsigned char> zeros(declared.property.size());
    rig.unit().setProperty(declared.property.id(), declared.scope, 0, zeros.data(),
                           declared.property.size());
    EXPECT_EQ(listener.heard(), 1);
  }
}

TEST(Properties, NameWhatIsWrongWithAReading) {
  Rig rig;
  for (const Reading& reading : kReadings) {
    const AudioUnitScope scope = reading.scope;
    const UInt32 right = reading.size;
    SCOPED_TRACE(reading.id);
    std::array<unsigned char, 256> data{};
    std::array<unsigned char, 256> untouched{};
    const auto get = [&](AudioUnitScope at, AudioUnitElement element, void* to, UInt32 size) {
      const UInt32 given = size;
      const OSStatus status = rig.unit().getProperty(reading.id, at, element, to, size);
      EXPECT_EQ(size, given);
      return status;
    };
    EXPECT_EQ(get(7, 0, data.data(), right), kAudioUnitErr_InvalidScope);
    EXPECT_EQ(get(scope, 3, data.data(), right), kAudioUnitErr_InvalidElement);
    EXPECT_EQ(get(scope, 0, data.data(), right - 1), kAudioUnitErr_InvalidPropertyValue);
    EXPECT_EQ(get(scope, 0, data.data(), 0), kAudioUnitErr_InvalidPropertyValue);
    EXPECT_EQ(get(scope, 0, nullptr, right), kAudioUnitErr_InvalidPropertyValue);
    EXPECT_EQ(data, untouched);
  }
}

TEST(Properties, WriteTheirOwnSizeIntoALargerBuffer) {
  Rig rig;
  std::array<unsigned char, 200> data{};
  UInt32 size = 200;
  ASSERT_EQ(
      rig.unit().getProperty(velk::kConverterProperty_PeakStats, kGlobal, 0, data.data(), size),
      noErr);
  EXPECT_EQ(size, 96U);
}

TEST(Properties, NameWhatIsWrongWithAWriting) {
  Rig rig;
  auto& unit = rig.unit();
  const UInt32 value = 1;
  const auto set = [&](AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       const void* data,
                       UInt32 size) { return unit.setProperty(id, scope, element, data, size); };
  for (const AudioUnitPropertyID id :
       {velk::kConverterProperty_MonitorSource, velk::kConverterProperty_ResetPeakStats,
        velk::kConverterProperty_ListeningTestActive}) {
    EXPECT_EQ(set(id, kAudioUnitScope_Input, 0, &value, 4), kAudioUnitErr_InvalidScope);
    EXPECT_EQ(set(id, kGlobal, 1, &value, 4), kAudioUnitErr_InvalidElement);
    EXPECT_EQ(set(id, kGlobal, 0, &value, 3), kAudioUnitErr_InvalidPropertyValue);
    EXPECT_EQ(set(id, kGlobal, 0, &value, 8), kAudioUnitErr_InvalidPropertyValue);
    EXPECT_EQ(set(id, kGlobal, 0, nullptr, 4), kAudioUnitErr_InvalidPropertyValue);
  }
  for (const auto& [id, scope, size] : kReadings) {
    const bool writable = id == velk::kConverterProperty_MonitorSource ||
                          id == velk::kConverterProperty_ListeningTestActive ||
                          id == kAudioUnitProperty_OfflineRender ||
                          id == converter::kConverterProperty_Metering ||
                          id == kAudioUnitProperty_PresentPreset;
    std::array<unsigned char, 256> zeros{};
    EXPECT_EQ(set(id, scope, 0, zeros.data(), size),
              writable ? OSStatus{noErr} : kAudioUnitErr_PropertyNotWritable)
        << id;
  }
}

TEST(Properties, AreUnknownWhereTheUnitHasNone) {
  Rig rig;
  UInt32 value = 1;
  UInt32 size = sizeof value;
  for (const AudioUnitPropertyID id : {0U, 1U, 5300U, 5305U, 5309U, 5315U, 0xffffffffU}) {
    EXPECT_EQ(rig.unit().getProperty(id, kGlobal, 0, &value, size), kAudioUnitErr_InvalidProperty);
    EXPECT_EQ(rig.unit().setProperty(id, kGlobal, 0, &value, size), kAudioUnitErr_InvalidProperty);
  }
  EXPECT_EQ(
      rig.unit().getProperty(velk::kConverterProperty_ResetPeakStats, kGlobal, 0, &value, size),
      kAudioUnitErr_InvalidProperty)
      << "a request has no value to read";
}

TEST(ConverterUnit, IsNotMadeForFormatsThatItDoesNotDo) {
  using converter::ConverterUnit;
  EXPECT_THROW(ConverterUnit::make({.sampleRate = 22050}), std::invalid_argument);
  EXPECT_THROW(ConverterUnit::make({.sampleRate = 384000}), std::invalid_argument);
  EXPECT_THROW(ConverterUnit::make({.sampleRate = 0}), std::invalid_argument);
  EXPECT_THROW(ConverterUnit::make({.channels = 0}), std::invalid_argument);
  EXPECT_THROW(ConverterUnit::make({.channels = 6}), std::invalid_argument);
  EXPECT_THROW(ConverterUnit::make({.maximumFrames = 0}), std::invalid_argument);
  EXPECT_THROW(ConverterUnit::make({.maximumFrames = 8193}), std::invalid_argument);
  try {
    ConverterUnit::make({.channels = 6});
  } catch (const std::invalid_argument& error) {
    EXPECT_NE(std::strstr(error.what(), "6 channels"), nullptr) << error.what();
  }
}

}  // namespace

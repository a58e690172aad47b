#include <gtest/gtest.h>

#include <cstring>
#include <optional>
#include <vector>

#include "audio_unit/FactoryPresets.h"
#include "audio_unit/TypedProperty.h"
#include "audio_unit/Unit.h"

namespace {

struct Record {
  Float64 first;
  UInt32 second;
};

constexpr audio_unit::Property<UInt32> kNumber{5301};
constexpr audio_unit::Property<Record> kRecord{77, kAudioUnitScope_Input};

/// Notes how it is asked, gives what it was told to give and refuses with a status.
class AskedUnit final : public audio_unit::Unit {
 public:
  struct Call {
    AudioUnitPropertyID id;
    AudioUnitScope scope;
    AudioUnitElement element;
    UInt32 size;
  };

  std::optional<Call> read;
  std::optional<Call> written;
  std::vector<unsigned char> data;
  OSStatus status = noErr;

  OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       void* to, UInt32& size) override {
    read = {id, scope, element, size};
    if (!data.empty()) std::memcpy(to, data.data(), data.size());
    return status;
  }
  OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       const void* from, UInt32 size) override {
    written = {id, scope, element, size};
    const auto* bytes = static_cast<const unsigned char*>(from);
    data.assign(bytes, bytes + size);
    return status;
  }
  OSStatus getParameter(AudioUnitParameterID, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue&) override {
    return kAudioUnitErr_InvalidParameter;
  }
  OSStatus setParameter(AudioUnitParameterID, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue, UInt32) override {
    return kAudioUnitErr_InvalidParameter;
  }

  template <class Data>
  void give(const Data& value) {
    data.resize(sizeof value);
    std::memcpy(data.data(), &value, sizeof value);
  }
};

TEST(TypedProperty, IsAskedForByItsIdentifierItsScopeAndTheSizeOfItsData) {
  AskedUnit unit;
  readProperty(&unit, kNumber);
  ASSERT_TRUE(unit.read);
  EXPECT_EQ(unit.read->id, 5301U);
  EXPECT_EQ(unit.read->scope, kAudioUnitScope_Global);
  EXPECT_EQ(unit.read->element, 0U);
  EXPECT_EQ(unit.read->size, 4U);
  readProperty(&unit, kRecord, 3);
  EXPECT_EQ(unit.read->id, 77U);
  EXPECT_EQ(unit.read->scope, kAudioUnitScope_Input);
  EXPECT_EQ(unit.read->element, 3U);
  EXPECT_EQ(unit.read->size, sizeof(Record));
}

TEST(TypedProperty, IsReadAsItsData) {
  AskedUnit unit;
  unit.give(Record{1.5, 9});
  const auto reading = readProperty(&unit, kRecord);
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading.status(), noErr);
  EXPECT_EQ(reading->first, 1.5);
  EXPECT_EQ((*reading).second, 9U);
}

TEST(TypedProperty, GivesTheStatusAndTheFallbackWhenTheUnitRefuses) {
  AskedUnit unit;
  unit.give(UInt32{7});
  EXPECT_EQ(readProperty(&unit, kNumber).valueOr(3), 7U);
  unit.status = kAudioUnitErr_InvalidProperty;
  const auto reading = readProperty(&unit, kNumber);
  EXPECT_FALSE(reading);
  EXPECT_EQ(reading.status(), kAudioUnitErr_InvalidProperty);
  EXPECT_EQ(reading.valueOr(3), 3U);
}

TEST(TypedProperty, StartsFromZeroWhereAUnitGivesNothing) {
  AskedUnit unit;
  EXPECT_EQ(readProperty(&unit, kNumber).valueOr(3), 0U);
}

TEST(TypedProperty, LeavesWhatTheUnitDoesNotWriteToTheCaller) {
  AskedUnit unit;
  unit.status = kAudioUnitErr_InvalidProperty;
  Record record{2.5, 4};
  EXPECT_EQ(readPropertyInto(record, &unit, kRecord), kAudioUnitErr_InvalidProperty);
  EXPECT_EQ(record.first, 2.5);
  EXPECT_EQ(record.second, 4U);
}

TEST(TypedProperty, IsWrittenAsItsData) {
  AskedUnit unit;
  EXPECT_EQ(writeProperty(&unit, kNumber, 0x01020304), noErr);
  ASSERT_TRUE(unit.written);
  EXPECT_EQ(unit.written->id, 5301U);
  EXPECT_EQ(unit.written->scope, kAudioUnitScope_Global);
  EXPECT_EQ(unit.written->size, 4U);
  EXPECT_EQ(*readProperty(&unit, kNumber), 0x01020304U);
  unit.status = kAudioUnitErr_PropertyNotWritable;
  EXPECT_EQ(writeProperty(&unit, kRecord, {1, 2}, 5), kAudioUnitErr_PropertyNotWritable);
  EXPECT_EQ(unit.written->scope, kAudioUnitScope_Input);
  EXPECT_EQ(unit.written->element, 5U);
  EXPECT_EQ(unit.written->size, sizeof(Record));
}

TEST(TypedProperty, StandsForItsIdentifier) {
  const AudioUnitProperty inAnEvent = {nullptr, kNumber, kNumber.scope, 0};
  switch (inAnEvent.mPropertyID) {
    case kNumber:
      break;
    default:
      FAIL();
  }
}

TEST(FactoryPresets, AreThoseOfTheUnitUntilTheyAreGone) {
  const AUPreset record = {4, nullptr};
  const void* const pointers[] = {&record, nullptr};
  const CFArrayRef list = CFArrayCreateWithPointers(pointers, 2);
  AskedUnit unit;
  unit.give(list);
  {
    const audio_unit::FactoryPresets presets(&unit);
    EXPECT_EQ(unit.read->id, kAudioUnitProperty_FactoryPresets);
    ASSERT_TRUE(presets);
    EXPECT_EQ(presets.count(), 2);
    EXPECT_EQ(presets.at(0), &record);
    EXPECT_EQ(presets.at(1), nullptr) << "a null in the list";
    EXPECT_EQ(presets.at(2), nullptr);
    EXPECT_EQ(presets.at(0xffffffffU), nullptr);
  }
}

TEST(FactoryPresets, AreNoneWithoutAList) {
  AskedUnit unit;
  const audio_unit::FactoryPresets none(&unit);
  EXPECT_EQ(none.status(), noErr);
  EXPECT_FALSE(none);
  EXPECT_EQ(none.count(), 0);
  EXPECT_EQ(none.at(0), nullptr);
  unit.status = kAudioUnitErr_InvalidProperty;
  const audio_unit::FactoryPresets refused(&unit);
  EXPECT_EQ(refused.status(), kAudioUnitErr_InvalidProperty);
  EXPECT_FALSE(refused);
}

}  // namespace

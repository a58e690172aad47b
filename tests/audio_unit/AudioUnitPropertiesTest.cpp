#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "audio_unit/AudioUnitProperties.h"
#include "audio_unit/Unit.h"

using testing::DoAll;
using testing::Eq;
using testing::Return;
using testing::SetArgReferee;
using testing::StrictMock;

namespace {

class MockUnit : public audio_unit::Unit {
 public:
  MOCK_METHOD(OSStatus, getParameter,
              (AudioUnitParameterID, AudioUnitScope, AudioUnitElement, AudioUnitParameterValue&),
              (override));
  MOCK_METHOD(OSStatus, setParameter,
              (AudioUnitParameterID, AudioUnitScope, AudioUnitElement, AudioUnitParameterValue,
               UInt32),
              (override));
  MOCK_METHOD(OSStatus, getProperty,
              (AudioUnitPropertyID, AudioUnitScope, AudioUnitElement, void*, UInt32&), (override));
  MOCK_METHOD(OSStatus, setProperty,
              (AudioUnitPropertyID, AudioUnitScope, AudioUnitElement, const void*, UInt32),
              (override));
};

class UnitAccess : public testing::Test {
 protected:
  StrictMock<MockUnit> unit;
};

}  // namespace

TEST_F(UnitAccess, ReadsAParameter) {
  EXPECT_CALL(unit, getParameter(1, 2, 3, testing::_))
      .WillOnce(DoAll(SetArgReferee<3>(4.5F), Return(noErr)));
  float value = 0;
  EXPECT_EQ(AudioUnitGetParameter(&unit, 1, 2, 3, &value), noErr);
  EXPECT_EQ(value, 4.5F);
}

TEST_F(UnitAccess, LeavesTheValueAsItWasWhenTheReadFails) {
  EXPECT_CALL(unit, getParameter)
      .WillOnce(DoAll(SetArgReferee<3>(4.5F), Return(kAudioUnitErr_InvalidParameter)));
  float value = 7;
  EXPECT_EQ(AudioUnitGetParameter(&unit, 1, 0, 0, &value), kAudioUnitErr_InvalidParameter);
  EXPECT_EQ(value, 7.0F);
}

TEST_F(UnitAccess, WritesAParameter) {
  EXPECT_CALL(unit, setParameter(1, 2, 3, 4.5F, 64)).WillOnce(Return(kAudioUnitErr_InvalidScope));
  EXPECT_EQ(AudioUnitSetParameter(&unit, 1, 2, 3, 4.5F, 64), kAudioUnitErr_InvalidScope);
}

TEST_F(UnitAccess, ReadsAPropertyAndItsSize) {
  UInt32 data = 0;
  EXPECT_CALL(unit, getProperty(5301, 1, 2, &data, Eq(8U)))
      .WillOnce(DoAll(SetArgReferee<4>(4U), Return(noErr)));
  UInt32 size = 8;
  EXPECT_EQ(AudioUnitGetProperty(&unit, 5301, 1, 2, &data, &size), noErr);
  EXPECT_EQ(size, 4U);
}

TEST_F(UnitAccess, LeavesTheSizeAsItWasWhenTheReadFails) {
  EXPECT_CALL(unit, getProperty)
      .WillOnce(DoAll(SetArgReferee<4>(0U), Return(kAudioUnitErr_InvalidProperty)));
  UInt32 data = 0;
  UInt32 size = 4;
  EXPECT_EQ(AudioUnitGetProperty(&unit, 1, 0, 0, &data, &size), kAudioUnitErr_InvalidProperty);
  EXPECT_EQ(size, 4U);
}

TEST_F(UnitAccess, WritesAProperty) {
  const UInt32 data = 1;
  EXPECT_CALL(unit, setProperty(5303, 1, 2, &data, 4)).WillOnce(Return(noErr));
  EXPECT_EQ(AudioUnitSetProperty(&unit, 5303, 1, 2, &data, sizeof(data)), noErr);
}

TEST_F(UnitAccess, WritesAnEmptyProperty) {
  EXPECT_CALL(unit, setProperty(1, 0, 0, nullptr, 0)).WillOnce(Return(noErr));
  EXPECT_EQ(AudioUnitSetProperty(&unit, 1, 0, 0, nullptr, 0), noErr);
}

TEST_F(UnitAccess, RefusesANullUnit) {
  float value = 7;
  UInt32 data = 0;
  UInt32 size = 4;
  EXPECT_EQ(AudioUnitGetParameter(nullptr, 0, 0, 0, &value), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(AudioUnitSetParameter(nullptr, 0, 0, 0, 1, 0), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(AudioUnitGetProperty(nullptr, 0, 0, 0, &data, &size), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(AudioUnitSetProperty(nullptr, 0, 0, 0, &data, 4), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(value, 7.0F);
  EXPECT_EQ(size, 4U);
}

TEST_F(UnitAccess, RefusesANullResultWithoutAskingTheUnit) {
  UInt32 data = 0;
  UInt32 size = 4;
  EXPECT_EQ(AudioUnitGetParameter(&unit, 0, 0, 0, nullptr), kAudio_ParamError);
  EXPECT_EQ(AudioUnitGetProperty(&unit, 0, 0, 0, nullptr, &size), kAudio_ParamError);
  EXPECT_EQ(AudioUnitGetProperty(&unit, 0, 0, 0, &data, nullptr), kAudio_ParamError);
  EXPECT_EQ(AudioUnitSetProperty(&unit, 0, 0, 0, nullptr, 4), kAudio_ParamError);
}

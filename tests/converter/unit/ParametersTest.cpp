#include <gtest/gtest.h>

#include <atomic>
#include <bit>
#include <limits>
#include <thread>

#include "Rig.h"
#include "converter/codec/Encoder.h"
#include "converter/unit/Parameters.h"

namespace {

TEST(Parameters, AreThoseOfTheFirstPresetInANewUnit) {
  Rig rig;
  EXPECT_EQ(rig.parameter(velk::kConverterParam_Format), 0);
  EXPECT_EQ(rig.parameter(velk::kConverterParam_Strategy), 1);
  EXPECT_EQ(rig.parameter(velk::kConverterParam_RateQuality), 14);
}

TEST(Parameters, ReadBackExactlyAsWritten) {
  Rig rig;
  const float values[] = {0,
                          1,
                          2,
                          16,
                          127,
                          1.75F,
                          -3,
                          1e30F,
                          -0.0F,
                          std::numeric_limits<float>::infinity(),
                          std::numeric_limits<float>::denorm_min(),
                          std::numeric_limits<float>::quiet_NaN()};
  for (const float value : values) {
    for (AudioUnitParameterID id = 0; id < 3; ++id) {
      rig.setParameter(id, value);
      const float read = rig.parameter(id);
      EXPECT_EQ(std::bit_cast<UInt32>(read), std::bit_cast<UInt32>(value)) << value;
    }
  }
}

TEST(Parameters, NameWhatIsWrongWithAnAccess) {
  Rig rig;
  auto& unit = rig.unit();
  float value = 42;
  EXPECT_EQ(unit.getParameter(3, kAudioUnitScope_Global, 0, value), kAudioUnitErr_InvalidParameter);
  EXPECT_EQ(unit.setParameter(3, kAudioUnitScope_Global, 0, 1, 0), kAudioUnitErr_InvalidParameter);
  EXPECT_EQ(unit.getParameter(0, kAudioUnitScope_Output, 0, value), kAudioUnitErr_InvalidScope);
  EXPECT_EQ(unit.setParameter(0, kAudioUnitScope_Input, 0, 1, 0), kAudioUnitErr_InvalidScope);
  EXPECT_EQ(unit.getParameter(0, kAudioUnitScope_Global, 1, value), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(unit.setParameter(0, kAudioUnitScope_Global, 1, 1, 0), kAudioUnitErr_InvalidElement);
  EXPECT_EQ(value, 42);
  EXPECT_EQ(rig.parameter(velk::kConverterParam_Format), 0);
}

TEST(Parameters, PublishTheSettingOfTheirLastValuesWhoeverWrote) {
  const converter::UnitFormat unit;
  for (int turn = 0; turn < 200; ++turn) {
    std::atomic<converter::Setting> published;
    converter::Parameters parameters(unit, {0, 0, 7}, published);
    const auto write = [&](AudioUnitParameterID id, float last) {
      for (float value = 0; value < 5; ++value) parameters.setValue(id, value);
      parameters.setValue(id, last);
    };
    std::thread beside(write, velk::kConverterParam_Strategy, 2.0F);
    write(velk::kConverterParam_RateQuality, static_cast<float>(turn % 128));
    beside.join();
    ASSERT_EQ(published.load(), parameters.setting());
    ASSERT_EQ(published.load(), nearestSetting({0, 2, static_cast<float>(turn % 128)}, unit,
                                               converter::encoderAbilities()));
  }
}

AudioUnitParameterInfo infoOf(Rig& rig, AudioUnitElement parameter) {
  return rig.property(audio_unit::parameterInfoProperty, parameter);
}

TEST(ParameterInfo, OffersTheFormatsThatChannelsAndBuildAllow) {
  const bool highEfficiency = converter::hasHighEfficiencyEncoder();
  Rig stereo({.sampleRate = 48000, .channels = 2, .maximumFrames = 512});
  EXPECT_EQ(infoOf(stereo, 0).maxValue, highEfficiency ? 2.0F : 0.0F);
  Rig mono({.sampleRate = 48000, .channels = 1, .maximumFrames = 512});
  EXPECT_EQ(infoOf(mono, 0).maxValue, highEfficiency ? 1.0F : 0.0F);
}

TEST(ParameterInfo, HasNameRangeAndDefaultOfEveryParameter) {
  Rig rig;
  EXPECT_STREQ(infoOf(rig, 0).name, "Format");
  EXPECT_STREQ(infoOf(rig, 1).name, "Strategy");
  EXPECT_STREQ(infoOf(rig, 2).name, "Rate or Quality");
  EXPECT_EQ(infoOf(rig, 1).maxValue, 2);
  EXPECT_EQ(infoOf(rig, 2).maxValue, 127);
  for (AudioUnitElement id = 0; id < 3; ++id) {
    const auto info = infoOf(rig, id);
    EXPECT_EQ(info.minValue, 0);
    EXPECT_EQ(info.defaultValue, rig.parameter(id));
    EXPECT_EQ(info.flags, kAudioUnitParameterFlag_IsReadable | kAudioUnitParameterFlag_IsWritable);
  }
}

converter::EffectiveSetting effective(Rig& rig) {
  return rig.property(converter::kConverterProperty_EffectiveSetting);
}

TEST(EffectiveSetting, IsWhatTheParametersAskWhereTheEncoderCan) {
  Rig rig;
  rig.setSetting(0, 0, 10);
  const auto setting = effective(rig);
  EXPECT_EQ(setting.format, 0U);
  EXPECT_EQ(setting.strategy, 0U);
  EXPECT_EQ(setting.bitRate, 128000U);
  EXPECT_EQ(setting.vbrMode, 0U);
}

TEST(EffectiveSetting, ShowsTheModeOfAQuality) {
  Rig rig;
  rig.setSetting(0, 2, 127);
  const auto setting = effective(rig);
  EXPECT_EQ(setting.strategy, 2U);
  EXPECT_EQ(setting.bitRate, 0U);
  EXPECT_EQ(setting.vbrMode, 5U);
}

TEST(EffectiveSetting, ShowsTheNearestThatWorksAndLeavesTheParametersAlone) {
  Rig rig({.sampleRate = 44100, .channels = 1, .maximumFrames = 512});
  rig.setSetting(2, 0, 16);
  const auto setting = effective(rig);
  EXPECT_EQ(setting.format, converter::hasHighEfficiencyEncoder() ? 1U : 0U);
  EXPECT_EQ(setting.bitRate, converter::hasHighEfficiencyEncoder() ? 132300U : 264600U);
  EXPECT_EQ(rig.parameter(velk::kConverterParam_Format), 2);
  EXPECT_EQ(rig.parameter(velk::kConverterParam_RateQuality), 16);
}

TEST(EffectiveSetting, IsCarriedThroughPlayForEveryWildValue) {
  const Signal input = music(2, 30000, 44100);
  for (const float value : {-1.0F, 99.0F, std::numeric_limits<float>::quiet_NaN()}) {
    Rig rig;
    rig.setSetting(value, value, value);
    const Signal output = rig.render(input);
    EXPECT_GT(rms(output[0], 20000, 30000), 0.01) << value;
  }
}

}  // namespace

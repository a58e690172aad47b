#include <gtest/gtest.h>

#include <string>

#include "Rig.h"
#include "audio_unit/FactoryPresets.h"

namespace {

AUPreset presentPreset(Rig& rig) {
  return rig.property(audio_unit::presentPresetProperty);
}

TEST(Presets, AreFourInOrder) {
  Rig rig;
  const audio_unit::FactoryPresets presets(&rig.unit());
  ASSERT_EQ(presets.count(), 4);
  for (UInt32 i = 0; i < 4; ++i) EXPECT_EQ(presets.at(i)->presetNumber, static_cast<SInt32>(i));
  EXPECT_STREQ(CFStringGetUTF8Ptr(presets.at(0)->presetName), "Ondara Plus");
}

TEST(Presets, SetAllThreeParameters) {
  const float expected[4][3] = {{0, 1, 14}, {0, 1, 10}, {1, 0, 7}, {1, 1, 16}};
  Rig rig;
  const audio_unit::FactoryPresets presets(&rig.unit());
  for (const UInt32 index : {3U, 1U, 2U, 0U}) {
    rig.setProperty(audio_unit::presentPresetProperty, *presets.at(index));
    for (AudioUnitParameterID id = 0; id < 3; ++id) {
      EXPECT_EQ(rig.parameter(id), expected[index][id]) << index;
    }
    const AUPreset present = presentPreset(rig);
    EXPECT_EQ(present.presetNumber, static_cast<SInt32>(index));
    EXPECT_STREQ(CFStringGetUTF8Ptr(present.presetName),
                 CFStringGetUTF8Ptr(presets.at(index)->presetName));
    CFRelease(present.presetName);
  }
}

TEST(Presets, ThatDoNotExistAreRefused) {
  Rig rig;
  rig.setPreset(2);
  for (const SInt32 number : {-1, 4, 2147483647}) {
    EXPECT_EQ(writeProperty(&rig.unit(), audio_unit::presentPresetProperty, {number, nullptr}),
              kAudioUnitErr_InvalidPropertyValue);
  }
  EXPECT_EQ(rig.parameter(velk::kConverterParam_Format), 1);
}

TEST(Presets, GiveWayToCustomParameters) {
  Rig rig;
  rig.setParameter(velk::kConverterParam_RateQuality, 12);
  const AUPreset custom = presentPreset(rig);
  EXPECT_EQ(custom.presetNumber, -1);
  EXPECT_STREQ(CFStringGetUTF8Ptr(custom.presetName), "Custom");
  CFRelease(custom.presetName);
  rig.setParameter(velk::kConverterParam_RateQuality, 10);
  const AUPreset again = presentPreset(rig);
  EXPECT_EQ(again.presetNumber, 1);
  CFRelease(again.presetName);
}

TEST(Presets, OutliveTheUnitThatNamedThem) {
  std::string name;
  AUPreset kept{};
  {
    Rig rig;
    const audio_unit::FactoryPresets presets(&rig.unit());
    kept = *presets.at(0);
    name = CFStringGetUTF8Ptr(kept.presetName);
  }
  EXPECT_EQ(CFStringGetUTF8Ptr(kept.presetName), name);
}

}  // namespace

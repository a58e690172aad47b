#include <gtest/gtest.h>

#include <string>

#include "Rig.h"

namespace {

constexpr AudioUnitScope kGlobal = kAudioUnitScope_Global;

/// The unit's preset list, released on destruction.
class FactoryPresets {
 public:
  explicit FactoryPresets(Rig& rig)
      : array_(rig.property<CFArrayRef>(kAudioUnitProperty_FactoryPresets)) {}
  FactoryPresets(const FactoryPresets&) = delete;
  FactoryPresets& operator=(const FactoryPresets&) = delete;
  ~FactoryPresets() { CFRelease(array_); }

  CFIndex count() const { return CFArrayGetCount(array_); }
  const AUPreset& at(CFIndex index) const {
    return *static_cast<const AUPreset*>(CFArrayGetValueAtIndex(array_, index));
  }

 private:
  CFArrayRef array_;
};

AUPreset presentPreset(Rig& rig) {
  return rig.property<AUPreset>(kAudioUnitProperty_PresentPreset);
}

TEST(Presets, AreFourInOrder) {
  Rig rig;
  const FactoryPresets presets(rig);
  ASSERT_EQ(presets.count(), 4);
  for (SInt32 i = 0; i < 4; ++i) EXPECT_EQ(presets.at(i).presetNumber, i);
  EXPECT_STREQ(CFStringGetUTF8Ptr(presets.at(0).presetName), "Ondara Plus");
}

TEST(Presets, SetAllThreeParameters) {
  const float expected[4][3] = {{0, 1, 14}, {0, 1, 10}, {1, 0, 7}, {1, 1, 16}};
  Rig rig;
  const FactoryPresets presets(rig);
  for (const CFIndex index : {3, 1, 2, 0}) {
    ASSERT_EQ(rig.unit().setProperty(kAudioUnitProperty_PresentPreset, kGlobal, 0,
                                     &presets.at(index), sizeof(AUPreset)),
              noErr);
    for (AudioUnitParameterID id = 0; id < 3; ++id) {
      EXPECT_EQ(rig.parameter(id), expected[index][id]) << index;
    }
    const AUPreset present = presentPreset(rig);
    EXPECT_EQ(present.presetNumber, index);
    EXPECT_STREQ(CFStringGetUTF8Ptr(present.presetName),
                 CFStringGetUTF8Ptr(presets.at(index).presetName));
    CFRelease(present.presetName);
  }
}

TEST(Presets, ThatDoNotExistAreRefused) {
  Rig rig;
  rig.setPreset(2);
  for (const SInt32 number : {-1, 4, 2147483647}) {
    const AUPreset preset{number, nullptr};
    EXPECT_EQ(rig.unit().setProperty(kAudioUnitProperty_PresentPreset, kGlobal, 0, &preset,
                                     sizeof preset),
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
    const FactoryPresets presets(rig);
    kept = presets.at(0);
    name = CFStringGetUTF8Ptr(kept.presetName);
  }
  EXPECT_EQ(CFStringGetUTF8Ptr(kept.presetName), name);
}

}  // namespace

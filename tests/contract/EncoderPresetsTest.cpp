#include <gtest/gtest.h>

#include "contract/EncoderPresets.h"

namespace {

using velk::EncoderSetting;

TEST(EncoderPresets, AreTheseFour) {
  const struct {
    const char* name;
    const char* word;
    EncoderSetting setting;
  } expected[] = {{"Ondara Plus", "plus", {0, 1, 14}},
                  {"128K AAC", "128k", {0, 1, 10}},
                  {"Streaming", "streaming", {1, 0, 7}},
                  {"High Quality", "high", {1, 1, 16}}};
  ASSERT_EQ(velk::encoderPresets.size(), 4U);
  for (std::size_t index = 0; index < 4; ++index) {
    const velk::EncoderPreset& preset = velk::encoderPresets.at(index);
    EXPECT_EQ(preset.number, index);
    EXPECT_STREQ(preset.name, expected[index].name);
    EXPECT_EQ(preset.word, expected[index].word);
    EXPECT_EQ(preset.setting, expected[index].setting);
  }
}

}  // namespace

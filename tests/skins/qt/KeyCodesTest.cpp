#include <gtest/gtest.h>

#include <QKeyEvent>

#include "skins/qt/KeyCodes.h"
#include "view/keys/KeyLabels.h"

namespace {

using ui::qt::kNoPositionCode;
using ui::qt::positionCode;
using ui::qt::positionCodeForEvdev;
using ui::qt::positionCodeForQtKey;

constexpr std::uint32_t kScanCodeOffset = 8;

QKeyEvent press(int key, std::uint32_t scanCode, Qt::KeyboardModifiers modifiers = {}) {
  return {QEvent::KeyPress, key, modifiers, scanCode, 0, 0};
}

bool someKeyHas(std::uint16_t code) {
  for (std::uint32_t key = 1; key < 256; ++key) {
    if (positionCodeForEvdev(key) == code) {
      return true;
    }
  }
  return positionCodeForQtKey(Qt::Key_Clear, true) == code;
}

TEST(KeyCodes, CoverEveryLabelledPosition) {
  for (std::uint16_t code = 0; code <= 126; ++code) {
    if (!velk::keyLabel(code).empty()) {
      EXPECT_TRUE(someKeyHas(code)) << "position code " << code;
    }
  }
}

TEST(KeyCodes, GiveNoTwoKeysTheSamePosition) {
  std::map<std::uint16_t, std::uint32_t> seen;
  for (std::uint32_t key = 1; key < 256; ++key) {
    const std::uint16_t code = positionCodeForEvdev(key);
    // Help and Insert share a position: a keyboard has one or the other there.
    if (code == kNoPositionCode || code == 114) {
      continue;
    }
    EXPECT_TRUE(seen.emplace(code, key).second) << "keys " << seen[code] << " and " << key;
  }
}

TEST(KeyCodes, IdentifyAKeyByItsPlaceWhateverItTypes) {
  // The key beside Tab types an A on a French keyboard and a Q on an English one.
  const auto french = press(Qt::Key_A, 16 + kScanCodeOffset);
  EXPECT_EQ(positionCode(french), 12);
  const auto english = press(Qt::Key_Q, 16 + kScanCodeOffset);
  EXPECT_EQ(positionCode(english), 12);
}

TEST(KeyCodes, IdentifyAKeyWithoutAScanCodeByWhatItTypes) {
  EXPECT_EQ(positionCode(press(Qt::Key_S, 0)), 1);
  EXPECT_EQ(positionCode(press(Qt::Key_S, 0, Qt::ShiftModifier | Qt::ControlModifier)), 1);
  EXPECT_EQ(positionCode(press(Qt::Key_Backspace, 0)), 51);
  EXPECT_EQ(positionCode(press(Qt::Key_Delete, 0)), 117);
}

TEST(KeyCodes, TellMainRowAndKeypadApart) {
  EXPECT_EQ(positionCode(press(Qt::Key_1, 2 + kScanCodeOffset)), 18);
  EXPECT_EQ(positionCode(press(Qt::Key_End, 79 + kScanCodeOffset)), 83);
  EXPECT_EQ(positionCode(press(Qt::Key_1, 0)), 18);
  EXPECT_EQ(positionCode(press(Qt::Key_1, 0, Qt::KeypadModifier)), 83);
  EXPECT_EQ(positionCode(press(Qt::Key_Enter, 0, Qt::KeypadModifier)), 76);
  EXPECT_EQ(positionCode(press(Qt::Key_Return, 0)), 36);
}

TEST(KeyCodes, GiveNoPositionToOtherKeys) {
  EXPECT_EQ(positionCode(press(Qt::Key_Shift, 42 + kScanCodeOffset)), kNoPositionCode);
  EXPECT_EQ(positionCode(press(Qt::Key_VolumeUp, 115 + kScanCodeOffset)), kNoPositionCode);
  EXPECT_EQ(positionCode(press(Qt::Key_unknown, 0)), kNoPositionCode);
  EXPECT_EQ(positionCodeForEvdev(0), kNoPositionCode);
  EXPECT_EQ(positionCodeForEvdev(100000), kNoPositionCode);
}

TEST(KeyCodes, GiveTheBoundKeysTheirLabels) {
  const std::pair<std::uint32_t, const char*> bound[] = {{2, "1"},  {3, "2"},  {14, "\u232B"},
                                                         {31, "S"}, {30, "A"}, {48, "B"}};
  for (const auto& [key, label] : bound) {
    EXPECT_EQ(velk::keyLabel(positionCodeForEvdev(key)), label);
  }
}

}  // namespace

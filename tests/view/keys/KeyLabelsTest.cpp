#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "view/keys/KeyLabels.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace {

/// Labels and the codes that have them, arranged by what is printed on the keys.
std::map<int, std::string> expectedLabels() {
  std::map<int, std::string> labels;
  const auto put = [&](const std::string& label, std::initializer_list<int> codes) {
    for (const int code : codes) {
      labels[code] = label;
    }
  };
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const std::vector<int> letterCodes = {0,  11, 8,  2,  14, 3, 5,  4,  34, 38, 40, 37, 46,
                                        45, 31, 35, 12, 15, 1, 17, 32, 9,  13, 7,  16, 6};
  for (std::size_t letter = 0; letter < letters.size(); ++letter) {
    put(std::string(1, letters[letter]), {letterCodes[letter]});
  }
  put("1", {18, 83});
  put("2", {19, 84});
  put("3", {20, 85});
  put("4", {21, 86});
  put("5", {23, 87});
  put("6", {22, 88});
  put("7", {26, 89});
  put("8", {28, 91});
  put("9", {25, 92});
  put("0", {29, 82});
  put("=", {24, 81});
  put("-", {27, 78});
  put("/", {44, 75});
  put(".", {47, 65});
  put("]", {30});
  put("[", {33});
  put("'", {39});
  put(";", {41});
  put("\x5C", {42});
  put(",", {43});
  put("`", {50});
  put("*", {67});
  put("+", {69});
  put("space", {49});
  put("esc", {53});
  put("\xE2\x86\xA9", {36});    // U+21A9
  put("\xE2\x87\xA5", {48});    // U+21E5
  put("\xE2\x8C\xAB", {51});    // U+232B
  put("\xE2\x8C\xA7", {71});    // U+2327
  put("\xE2\x8C\xA4", {76});    // U+2324
  put("?\xE2\x83\x9D", {114});  // U+003F U+20DD
  put("\xE2\x86\x96", {115});   // U+2196
  put("\xE2\x87\x9E", {116});   // U+21DE
  put("\xE2\x8C\xA6", {117});   // U+2326
  put("\xE2\x86\x98", {119});   // U+2198
  put("\xE2\x87\x9F", {121});   // U+21DF
  put("\xE2\x87\xA0", {123});   // U+21E0
  put("\xE2\x87\xA2", {124});   // U+21E2
  put("\xE2\x87\xA3", {125});   // U+21E3
  put("\xE2\x87\xA1", {126});   // U+21E1
  const std::vector<int> functionKeys = {122, 120, 99,  118, 96,  97,  98,  100,
                                         101, 109, 103, 111, 105, 107, 113, 106};
  for (std::size_t key = 0; key < functionKeys.size(); ++key) {
    const std::string number = std::to_string(key + 1);
    // U+F860 before a single digit, U+F861 before two.
    put((key < 9 ? "\xEF\xA1\xA0"
                   "F"
                 : "\xEF\xA1\xA1"
                   "F") +
            number,
        {functionKeys[key]});
  }
  return labels;
}

TEST(KeyLabels, AreTheseForAllCodes) {
  const std::map<int, std::string> expected = expectedLabels();
  for (int code = 0; code <= 0xFFFF; ++code) {
    const auto found = expected.find(code);
    const std::string label = found == expected.end() ? "" : found->second;
    ASSERT_EQ(velk::keyLabel(static_cast<std::uint16_t>(code)), label) << code;
    ASSERT_EQ(velk::Velk_AUAACConverterCustomView::unicodeStringForKeyCode(
                  static_cast<std::uint16_t>(code)),
              label)
        << code;
  }
}

TEST(KeyLabels, AreMissingForTheseCodesBelow127) {
  std::vector<int> missing;
  for (int code = 0; code <= 126; ++code) {
    if (velk::keyLabel(static_cast<std::uint16_t>(code)).empty()) {
      missing.push_back(code);
    }
  }
  EXPECT_EQ(missing,
            (std::vector<int>{10, 52, 54, 55, 56, 57, 58, 59, 60, 61, 62,  63,  64,  66,  68, 70,
                              72, 73, 74, 77, 79, 80, 90, 93, 94, 95, 102, 104, 108, 110, 112}));
}

}  // namespace

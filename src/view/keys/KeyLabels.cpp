#include "view/keys/KeyLabels.h"

#include <array>
#include <cstddef>

namespace velk {

namespace {

struct Key {
  std::uint16_t code;
  std::string_view label;
};

constexpr std::size_t kCodes = 127;

// U+F860 and U+F861 mark the two or three characters after them as one glyph.
constexpr Key kKeys[] = {
    // Main block.
    {0, "A"},
    {1, "S"},
    {2, "D"},
    {3, "F"},
    {4, "H"},
    {5, "G"},
    {6, "Z"},
    {7, "X"},
    {8, "C"},
    {9, "V"},
    {11, "B"},
    {12, "Q"},
    {13, "W"},
    {14, "E"},
    {15, "R"},
    {16, "Y"},
    {17, "T"},
    {18, "1"},
    {19, "2"},
    {20, "3"},
    {21, "4"},
    {22, "6"},
    {23, "5"},
    {24, "="},
    {25, "9"},
    {26, "7"},
    {27, "-"},
    {28, "8"},
    {29, "0"},
    {30, "]"},
    {31, "O"},
    {32, "U"},
    {33, "["},
    {34, "I"},
    {35, "P"},
    {36, "\u21A9"},  // return
    {37, "L"},
    {38, "J"},
    {39, "'"},
    {40, "K"},
    {41, ";"},
    {42, "\\"},
    {43, ","},
    {44, "/"},
    {45, "N"},
    {46, "M"},
    {47, "."},
    {48, "\u21E5"},  // tab
    {49, "space"},
    {50, "`"},
    {51, "\u232B"},  // delete
    {53, "esc"},
    // Keypad.
    {65, "."},
    {67, "*"},
    {69, "+"},
    {71, "\u2327"},  // clear
    {75, "/"},
    {76, "\u2324"},  // enter
    {78, "-"},
    {81, "="},
    {82, "0"},
    {83, "1"},
    {84, "2"},
    {85, "3"},
    {86, "4"},
    {87, "5"},
    {88, "6"},
    {89, "7"},
    {91, "8"},
    {92, "9"},
    // Function keys.
    {122, "\uF860F1"},
    {120, "\uF860F2"},
    {99, "\uF860F3"},
    {118, "\uF860F4"},
    {96, "\uF860F5"},
    {97, "\uF860F6"},
    {98, "\uF860F7"},
    {100, "\uF860F8"},
    {101, "\uF860F9"},
    {109, "\uF861F10"},
    {103, "\uF861F11"},
    {111, "\uF861F12"},
    {105, "\uF861F13"},
    {107, "\uF861F14"},
    {113, "\uF861F15"},
    {106, "\uF861F16"},
    // Navigation.
    {114, "?\u20DD"},  // help
    {115, "\u2196"},   // home
    {116, "\u21DE"},   // page up
    {117, "\u2326"},   // forward delete
    {119, "\u2198"},   // end
    {121, "\u21DF"},   // page down
    {123, "\u21E0"},   // left
    {124, "\u21E2"},   // right
    {125, "\u21E3"},   // down
    {126, "\u21E1"},   // up
};

constexpr std::array<std::string_view, kCodes> labelsByCode() {
  std::array<std::string_view, kCodes> labels{};
  for (const Key& key : kKeys) {
    labels[key.code] = key.label;
  }
  return labels;
}

constexpr std::array<std::string_view, kCodes> kLabels = labelsByCode();

}  // namespace

std::string_view keyLabel(std::uint16_t keyCode) {
  return keyCode < kLabels.size() ? kLabels[keyCode] : std::string_view();
}

}  // namespace velk

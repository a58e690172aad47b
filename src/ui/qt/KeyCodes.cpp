#include "ui/qt/KeyCodes.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace ui::qt {

namespace {

/// `evdev` is 0 for a key that only an event without a scan code can name, `qtKey` 0 for one that
/// is known by its place only.
struct Key {
  std::uint32_t evdev;
  int qtKey;
  std::uint16_t code;
};

constexpr Key kKeys[] = {
    {1, Qt::Key_Escape, 53},
    {2, Qt::Key_1, 18},
    {3, Qt::Key_2, 19},
    {4, Qt::Key_3, 20},
    {5, Qt::Key_4, 21},
    {6, Qt::Key_5, 23},
    {7, Qt::Key_6, 22},
    {8, Qt::Key_7, 26},
    {9, Qt::Key_8, 28},
    {10, Qt::Key_9, 25},
    {11, Qt::Key_0, 29},
    {12, Qt::Key_Minus, 27},
    {13, Qt::Key_Equal, 24},
    {14, Qt::Key_Backspace, 51},
    {15, Qt::Key_Tab, 48},
    {16, Qt::Key_Q, 12},
    {17, Qt::Key_W, 13},
    {18, Qt::Key_E, 14},
    {19, Qt::Key_R, 15},
    {20, Qt::Key_T, 17},
    {21, Qt::Key_Y, 16},
    {22, Qt::Key_U, 32},
    {23, Qt::Key_I, 34},
    {24, Qt::Key_O, 31},
    {25, Qt::Key_P, 35},
    {26, Qt::Key_BracketLeft, 33},
    {27, Qt::Key_BracketRight, 30},
    {28, Qt::Key_Return, 36},
    {30, Qt::Key_A, 0},
    {31, Qt::Key_S, 1},
    {32, Qt::Key_D, 2},
    {33, Qt::Key_F, 3},
    {34, Qt::Key_G, 5},
    {35, Qt::Key_H, 4},
    {36, Qt::Key_J, 38},
    {37, Qt::Key_K, 40},
    {38, Qt::Key_L, 37},
    {39, Qt::Key_Semicolon, 41},
    {40, Qt::Key_Apostrophe, 39},
    {41, Qt::Key_QuoteLeft, 50},
    {43, Qt::Key_Backslash, 42},
    {44, Qt::Key_Z, 6},
    {45, Qt::Key_X, 7},
    {46, Qt::Key_C, 8},
    {47, Qt::Key_V, 9},
    {48, Qt::Key_B, 11},
    {49, Qt::Key_N, 45},
    {50, Qt::Key_M, 46},
    {51, Qt::Key_Comma, 43},
    {52, Qt::Key_Period, 47},
    {53, Qt::Key_Slash, 44},
    {57, Qt::Key_Space, 49},
    {59, Qt::Key_F1, 122},
    {60, Qt::Key_F2, 120},
    {61, Qt::Key_F3, 99},
    {62, Qt::Key_F4, 118},
    {63, Qt::Key_F5, 96},
    {64, Qt::Key_F6, 97},
    {65, Qt::Key_F7, 98},
    {66, Qt::Key_F8, 100},
    {67, Qt::Key_F9, 101},
    {68, Qt::Key_F10, 109},
    {87, Qt::Key_F11, 103},
    {88, Qt::Key_F12, 111},
    {183, Qt::Key_F13, 105},
    {184, Qt::Key_F14, 107},
    {185, Qt::Key_F15, 113},
    {186, Qt::Key_F16, 106},
    {102, Qt::Key_Home, 115},
    {103, Qt::Key_Up, 126},
    {104, Qt::Key_PageUp, 116},
    {105, Qt::Key_Left, 123},
    {106, Qt::Key_Right, 124},
    {107, Qt::Key_End, 119},
    {108, Qt::Key_Down, 125},
    {109, Qt::Key_PageDown, 121},
    {111, Qt::Key_Delete, 117},
    {138, Qt::Key_Help, 114},
    // A keyboard without a Help key has Insert in its place.
    {110, Qt::Key_Insert, 114},
    // The additional key of ISO keyboards.
    {86, 0, 10},
};

constexpr Key kKeypad[] = {
    {55, Qt::Key_Asterisk, 67},
    {71, Qt::Key_7, 89},
    {72, Qt::Key_8, 91},
    {73, Qt::Key_9, 92},
    {74, Qt::Key_Minus, 78},
    {75, Qt::Key_4, 86},
    {76, Qt::Key_5, 87},
    {77, Qt::Key_6, 88},
    {78, Qt::Key_Plus, 69},
    {79, Qt::Key_1, 83},
    {80, Qt::Key_2, 84},
    {81, Qt::Key_3, 85},
    {82, Qt::Key_0, 82},
    {83, Qt::Key_Period, 65},
    {96, Qt::Key_Enter, 76},
    {98, Qt::Key_Slash, 75},
    {117, Qt::Key_Equal, 81},
    // Num Lock is where the other layout has Clear.
    {69, Qt::Key_NumLock, 71},
    {0, Qt::Key_Clear, 71},
    {0, Qt::Key_Comma, 65},
};

constexpr std::uint32_t kScanCodeOffset = 8;

template <class Matches>
std::uint16_t codeWhere(Matches matches) {
  for (const auto& table : {std::pair(std::begin(kKeys), std::end(kKeys)),
                            std::pair(std::begin(kKeypad), std::end(kKeypad))}) {
    const auto found = std::find_if(table.first, table.second, matches);
    if (found != table.second) {
      return found->code;
    }
  }
  return kNoPositionCode;
}

}  // namespace

std::uint16_t positionCodeForEvdev(std::uint32_t key) {
  return key == 0 ? kNoPositionCode : codeWhere([key](const Key& row) { return row.evdev == key; });
}

std::uint16_t positionCodeForQtKey(int qtKey, bool onKeypad) {
  const auto matches = [qtKey](const Key& row) { return row.qtKey == qtKey; };
  if (onKeypad) {
    const auto found = std::find_if(std::begin(kKeypad), std::end(kKeypad), matches);
    if (found != std::end(kKeypad)) {
      return found->code;
    }
  }
  return codeWhere(matches);
}

std::uint16_t positionCode(const QKeyEvent& event) {
  if (event.nativeScanCode() > kScanCodeOffset) {
    return positionCodeForEvdev(event.nativeScanCode() - kScanCodeOffset);
  }
  return positionCodeForQtKey(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

}  // namespace ui::qt

#include "skins/qt/KeyCodes.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace ui::qt {

namespace {

/// A Qt::Key and the number, from Linux's input-event-codes, of the key that types it.
struct Key {
  int qtKey;
  std::uint32_t evdev;
};

constexpr Key kKeys[] = {
    {Qt::Key_Escape, 1},
    {Qt::Key_1, 2},
    {Qt::Key_2, 3},
    {Qt::Key_3, 4},
    {Qt::Key_4, 5},
    {Qt::Key_5, 6},
    {Qt::Key_6, 7},
    {Qt::Key_7, 8},
    {Qt::Key_8, 9},
    {Qt::Key_9, 10},
    {Qt::Key_0, 11},
    {Qt::Key_Minus, 12},
    {Qt::Key_Equal, 13},
    {Qt::Key_Backspace, 14},
    {Qt::Key_Tab, 15},
    {Qt::Key_Q, 16},
    {Qt::Key_W, 17},
    {Qt::Key_E, 18},
    {Qt::Key_R, 19},
    {Qt::Key_T, 20},
    {Qt::Key_Y, 21},
    {Qt::Key_U, 22},
    {Qt::Key_I, 23},
    {Qt::Key_O, 24},
    {Qt::Key_P, 25},
    {Qt::Key_BracketLeft, 26},
    {Qt::Key_BracketRight, 27},
    {Qt::Key_Return, 28},
    {Qt::Key_A, 30},
    {Qt::Key_S, 31},
    {Qt::Key_D, 32},
    {Qt::Key_F, 33},
    {Qt::Key_G, 34},
    {Qt::Key_H, 35},
    {Qt::Key_J, 36},
    {Qt::Key_K, 37},
    {Qt::Key_L, 38},
    {Qt::Key_Semicolon, 39},
    {Qt::Key_Apostrophe, 40},
    {Qt::Key_QuoteLeft, 41},
    {Qt::Key_Backslash, 43},
    {Qt::Key_Z, 44},
    {Qt::Key_X, 45},
    {Qt::Key_C, 46},
    {Qt::Key_V, 47},
    {Qt::Key_B, 48},
    {Qt::Key_N, 49},
    {Qt::Key_M, 50},
    {Qt::Key_Comma, 51},
    {Qt::Key_Period, 52},
    {Qt::Key_Slash, 53},
    {Qt::Key_Space, 57},
    {Qt::Key_F1, 59},
    {Qt::Key_F2, 60},
    {Qt::Key_F3, 61},
    {Qt::Key_F4, 62},
    {Qt::Key_F5, 63},
    {Qt::Key_F6, 64},
    {Qt::Key_F7, 65},
    {Qt::Key_F8, 66},
    {Qt::Key_F9, 67},
    {Qt::Key_F10, 68},
    {Qt::Key_F11, 87},
    {Qt::Key_F12, 88},
    {Qt::Key_F13, 183},
    {Qt::Key_F14, 184},
    {Qt::Key_F15, 185},
    {Qt::Key_F16, 186},
    {Qt::Key_Home, 102},
    {Qt::Key_Up, 103},
    {Qt::Key_PageUp, 104},
    {Qt::Key_Left, 105},
    {Qt::Key_Right, 106},
    {Qt::Key_End, 107},
    {Qt::Key_Down, 108},
    {Qt::Key_PageDown, 109},
    {Qt::Key_Delete, 111},
    {Qt::Key_Help, 138},
    // Keyboards without a Help key have Insert in its place.
    {Qt::Key_Insert, 110},
};

constexpr Key kKeypad[] = {
    {Qt::Key_Asterisk, 55},
    {Qt::Key_7, 71},
    {Qt::Key_8, 72},
    {Qt::Key_9, 73},
    {Qt::Key_Minus, 74},
    {Qt::Key_4, 75},
    {Qt::Key_5, 76},
    {Qt::Key_6, 77},
    {Qt::Key_Plus, 78},
    {Qt::Key_1, 79},
    {Qt::Key_2, 80},
    {Qt::Key_3, 81},
    {Qt::Key_0, 82},
    {Qt::Key_Period, 83},
    {Qt::Key_Enter, 96},
    {Qt::Key_Slash, 98},
    {Qt::Key_Equal, 117},
    // Clear is in the place of Num Lock.
    {Qt::Key_NumLock, 69},
    {Qt::Key_Clear, 69},
    {Qt::Key_Comma, 83},
};

/// X11 and Wayland scan codes are a key's number plus this; lower ones stand for no key.
constexpr std::uint32_t kScanCodeOffset = 8;

}  // namespace

std::uint16_t positionCodeForQtKey(int qtKey, bool onKeypad) {
  const auto matches = [qtKey](const Key& row) { return row.qtKey == qtKey; };
  const auto onPad = std::find_if(std::begin(kKeypad), std::end(kKeypad), matches);
  const auto elsewhere = std::find_if(std::begin(kKeys), std::end(kKeys), matches);
  if (onPad != std::end(kKeypad) && (onKeypad || elsewhere == std::end(kKeys))) {
    return positionCodeForEvdev(onPad->evdev);
  }
  return elsewhere != std::end(kKeys) ? positionCodeForEvdev(elsewhere->evdev) : kNoPositionCode;
}

std::uint16_t positionCode(const QKeyEvent& event) {
  if (event.nativeScanCode() > kScanCodeOffset) {
    return positionCodeForX11(event.nativeScanCode());
  }
  return positionCodeForQtKey(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

}  // namespace ui::qt

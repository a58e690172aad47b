#pragma once

#include <cstdint>

#include "ui/Export.h"

/// Position codes: the virtual key codes of the US-ANSI layout, which say where a key is, not what
/// the user's layout types with it.
namespace ui {

/// The code of no key.
inline constexpr std::uint16_t kNoPositionCode = 0xFFFF;

/// From a key's number in Linux's input-event-codes (KEY_A is 30).
UI_EXPORT std::uint16_t positionCodeForEvdev(std::uint32_t key);

/// From an X11 or Wayland key code, which is that number plus 8.
UI_EXPORT std::uint16_t positionCodeForX11(std::uint32_t keyCode);

}  // namespace ui

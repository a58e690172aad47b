#pragma once

#include <cstdint>

#include "ui/Export.h"

/// Position codes: the virtual key codes of the US-ANSI layout, which say where a key is and not
/// what the user's layout writes with it.
namespace ui {

/// No key has this code.
inline constexpr std::uint16_t kNoPositionCode = 0xFFFF;

/// By the key's number in Linux's input-event-codes (KEY_A is 30).
UI_EXPORT std::uint16_t positionCodeForEvdev(std::uint32_t key);

/// By the code of an X11 keyboard, which is that number plus 8. Wayland's is the same.
UI_EXPORT std::uint16_t positionCodeForX11(std::uint32_t keyCode);

}  // namespace ui

#pragma once

#include <cstdint>

class QKeyEvent;

/// Position codes: the virtual key codes of the US-ANSI layout, which say where a key is and not
/// what the user's layout writes with it.
namespace ui::qt {

/// No key has this code.
inline constexpr std::uint16_t kNoPositionCode = 0xFFFF;

/// By the key's number in Linux's input-event-codes (KEY_A is 30).
std::uint16_t positionCodeForEvdev(std::uint32_t key);

/// By what the key writes, for events that no keyboard made. `qtKey` is a Qt::Key.
std::uint16_t positionCodeForQtKey(int qtKey, bool onKeypad);

/// Of a key press. X11 and Wayland give the key's number plus 8 as its scan code; an event without
/// one is taken by what it writes.
std::uint16_t positionCode(const QKeyEvent& event);

}  // namespace ui::qt

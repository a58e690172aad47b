#pragma once

#include <cstdint>

#include "ui/KeyPositions.h"

class QKeyEvent;

namespace ui::qt {

using ui::kNoPositionCode;
using ui::positionCodeForEvdev;

/// The position of the key that types `qtKey`, a Qt::Key, on a US keyboard; for events that come
/// from no keyboard. `onKeypad` prefers a key on the keypad. `kNoPositionCode` if there is none.
std::uint16_t positionCodeForQtKey(int qtKey, bool onKeypad);

/// The position of a pressed key. X11 and Wayland give the key's number plus 8 as its scan code; an
/// event without a scan code is mapped by its Qt::Key.
std::uint16_t positionCode(const QKeyEvent& event);

}  // namespace ui::qt

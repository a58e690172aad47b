#pragma once

#include <cstdint>

#include "ui/KeyPositions.h"

class QKeyEvent;

namespace ui::qt {

using ui::kNoPositionCode;
using ui::positionCodeForEvdev;

/// By what the key writes, for events that no keyboard made. `qtKey` is a Qt::Key.
std::uint16_t positionCodeForQtKey(int qtKey, bool onKeypad);

/// Of a key press. X11 and Wayland give the key's number plus 8 as its scan code; an event without
/// one is taken by what it writes.
std::uint16_t positionCode(const QKeyEvent& event);

}  // namespace ui::qt

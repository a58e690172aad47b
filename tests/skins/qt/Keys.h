#pragma once

#include <cstdint>

class QWidget;

namespace qt_test {

/// Sends the press and release of the key at that position, as an X11 keyboard of the US layout
/// would, to the widget.
void pressKeyAt(std::uint16_t positionCode, QWidget& widget);
/// The same, to the widget that has the focus. Throws if none has it.
void pressKeyAt(std::uint16_t positionCode);

}  // namespace qt_test

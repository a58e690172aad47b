#pragma once

#include <cstdint>

class QWidget;

namespace qt_test {

/// Presses and releases, on the widget, the key at that position of an X11 keyboard (US layout).
void pressKeyAt(std::uint16_t positionCode, QWidget& widget);
/// Does the same on the widget that has the focus. Throws if none has it.
void pressKeyAt(std::uint16_t positionCode);

}  // namespace qt_test

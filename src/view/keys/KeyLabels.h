#pragma once

#include <cstdint>
#include <string_view>

namespace velk {

/// The label of the key at that position of the US-ANSI layout (virtual key code), UTF-8; empty for
/// a code without one. Labels do not follow the user's keyboard layout; a keypad key may
/// share its label with one of the main block.
std::string_view keyLabel(std::uint16_t keyCode);

}  // namespace velk

#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

namespace ui::appkit {

/// The position code of a pressed key: the system's key code or, on GNUstep, where that is an X11
/// key code, the position code for it.
std::uint16_t positionCode(NSEvent* event);

}  // namespace ui::appkit

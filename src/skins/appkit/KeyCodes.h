#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

namespace ui::appkit {

/// The position code of a key press: what the system gives or, where that is an X11 keyboard's
/// code, what stands for it.
std::uint16_t positionCode(NSEvent* event);

}  // namespace ui::appkit

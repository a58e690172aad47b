#pragma once

#import <AppKit/AppKit.h>

#include "ui/Color.h"

namespace ui::appkit {

/// A text colour that is readable on a window's background. Black becomes the system's text colour;
/// any other keeps its hue and is made lighter or darker if necessary.
NSColor* textColor(const Color& color);

}  // namespace ui::appkit

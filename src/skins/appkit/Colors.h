#pragma once

#import <AppKit/AppKit.h>

#include "ui/Color.h"

namespace ui::appkit {

/// The colour for a text on a window's background. Black is the palette's own text colour; any
/// other keeps its hue and, where it could not be read, takes a lighter or darker tone.
NSColor* textColor(const Color& color);

}  // namespace ui::appkit

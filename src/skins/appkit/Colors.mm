#include "skins/appkit/Colors.h"

#include "ui/ReadableColor.h"

namespace ui::appkit {

namespace {

NSColor* deviceColor(const Color& color) {
  return [NSColor colorWithDeviceRed:static_cast<CGFloat>(color.red)
                               green:static_cast<CGFloat>(color.green)
                                blue:static_cast<CGFloat>(color.blue)
                               alpha:static_cast<CGFloat>(color.alpha)];
}

/// The current colour of a window's background; white if it is not known.
Color background() {
#ifdef GNUSTEP
  NSString* const deviceSpace = NSDeviceRGBColorSpace;
  NSColor* color = [[NSColor windowBackgroundColor] colorUsingColorSpaceName:deviceSpace];
#else
  NSColor* color =
      [[NSColor windowBackgroundColor] colorUsingColorSpace:[NSColorSpace deviceRGBColorSpace]];
#endif
  if (color == nil) {
    return {1, 1, 1, 1};
  }
  return {static_cast<double>([color redComponent]), static_cast<double>([color greenComponent]),
          static_cast<double>([color blueComponent]), 1};
}

}  // namespace

NSColor* textColor(const Color& color) {
  if (color == Color::black()) {
    return [NSColor controlTextColor];
  }
  return deviceColor(readable(color, background(), kTextContrast));
}

}  // namespace ui::appkit

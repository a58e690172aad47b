#include "skins/appkit/Lamp.h"

#include <algorithm>

namespace {

constexpr int kLit = 2;

NSColor* litColor() {
  return [NSColor colorWithDeviceRed:0.86 green:0.12 blue:0.10 alpha:1.0];
}

}  // namespace

@implementation Velk_Lamp

- (void)drawRect:(NSRect)rect {
  const NSRect bounds = [self bounds];
  const CGFloat side = std::min(bounds.size.width, bounds.size.height) - 3;
  const NSRect circle =
      NSMakeRect(NSMidX(bounds) - side / 2, NSMidY(bounds) - side / 2, side, side);
  NSBezierPath* ring = [NSBezierPath bezierPathWithOvalInRect:circle];
  [ring setLineWidth:1.5];
  if ([self intValue] < kLit) {
    [[NSColor grayColor] set];
    [ring stroke];
    return;
  }
  [litColor() set];
  [ring fill];
  [ring stroke];
  [[NSColor whiteColor] set];
  NSRectFill(NSMakeRect(NSMidX(circle) - 1, NSMinY(circle) + 2, 2, side - 4));
}

@end

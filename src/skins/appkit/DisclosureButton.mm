#include "skins/appkit/DisclosureButton.h"

@implementation Velk_DisclosureButton

#ifdef GNUSTEP
- (void)drawRect:(NSRect)rect {
  const NSRect bounds = NSInsetRect([self bounds], 2, 2);
  const bool pointsDown = [self state] == 1;
  const NSPoint tip = pointsDown ? NSMakePoint(NSMidX(bounds), NSMaxY(bounds))
                                 : NSMakePoint(NSMaxX(bounds), NSMidY(bounds));
  NSBezierPath* triangle = [NSBezierPath bezierPath];
  [triangle moveToPoint:NSMakePoint(NSMinX(bounds), NSMinY(bounds))];
  [triangle lineToPoint:tip];
  [triangle lineToPoint:pointsDown ? NSMakePoint(NSMaxX(bounds), NSMinY(bounds))
                                   : NSMakePoint(NSMinX(bounds), NSMaxY(bounds))];
  [triangle closePath];
  [([self isEnabled] ? [NSColor controlTextColor] : [NSColor grayColor]) set];
  [triangle fill];
}
#endif

@end

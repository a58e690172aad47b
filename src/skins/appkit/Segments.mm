#include "skins/appkit/Segments.h"

#ifdef GNUSTEP

#include "skins/appkit/ViewTree.h"

/// Collects the segments' attributes from the file.
@interface Velk_SegmentReader : NSObject {
  NSMutableArray* _controls;
}
/// For each control in the file, an array of its segments' attributes.
- (NSArray*)controls;
@end

@implementation Velk_SegmentReader

- (instancetype)init {
  self = [super init];
  if (self != nil) {
    _controls = [[NSMutableArray alloc] init];
  }
  return self;
}

- (void)dealloc {
  [_controls release];
  [super dealloc];
}

- (NSArray*)controls {
  return _controls;
}

- (void)parser:(NSXMLParser*)parser
    didStartElement:(NSString*)element
       namespaceURI:(NSString*)space
      qualifiedName:(NSString*)name
         attributes:(NSDictionary*)attributes {
  if ([element isEqualToString:@"segments"]) {
    [_controls addObject:[NSMutableArray array]];
  } else if ([element isEqualToString:@"segment"]) {
    [[_controls lastObject] addObject:attributes];
  }
}

@end

namespace ui::appkit {

namespace {

void restore(NSSegmentedControl* control, NSArray* segments) {
  [control setSegmentCount:static_cast<NSInteger>([segments count])];
  for (NSInteger index = 0; index < [control segmentCount]; ++index) {
    NSDictionary* attributes = [segments objectAtIndex:static_cast<NSUInteger>(index)];
    NSString* label = [attributes objectForKey:@"label"];
    [control setLabel:label != nil ? label : @"" forSegment:index];
    [control setWidth:NSWidth([control frame]) / static_cast<CGFloat>([segments count])
           forSegment:index];
    [[control cell] setTag:[[attributes objectForKey:@"tag"] intValue] forSegment:index];
    if ([[attributes objectForKey:@"selected"] isEqualToString:@"YES"]) {
      [control setSelectedSegment:index];
    }
  }
}

}  // namespace

void restoreSegments(NSArray* topLevelObjects, NSString* file) {
  NSXMLParser* parser =
      [[[NSXMLParser alloc] initWithContentsOfURL:[NSURL fileURLWithPath:file]] autorelease];
  Velk_SegmentReader* reader = [[[Velk_SegmentReader alloc] init] autorelease];
  [parser setDelegate:reader];
  [parser parse];
  NSUInteger next = 0;
  forEachViewOf(topLevelObjects, [&](NSView* view) {
    if ([view isKindOfClass:[NSSegmentedControl class]] && next < [[reader controls] count]) {
      restore(static_cast<NSSegmentedControl*>(view), [[reader controls] objectAtIndex:next++]);
    }
  });
}

}  // namespace ui::appkit

#endif

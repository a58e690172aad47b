#pragma once

#import <AppKit/AppKit.h>

/// A disclosure triangle. GNUstep knows the style but draws nothing for it.
@interface Velk_DisclosureButton : NSButton
@end

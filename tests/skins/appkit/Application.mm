#include "skins/appkit/Application.h"

#import <AppKit/AppKit.h>

#include <cstdio>
#include <initializer_list>

namespace appkit_test {

namespace {

/// Names the exception that ends the process.
void printUncaught(NSException* exception) {
  std::fprintf(stderr, "Uncaught exception %s: %s\n", [[exception name] UTF8String],
               [[exception reason] UTF8String]);
}

/// Left to itself GNUstep does not find its font in every start, and it uses an uninitialized value
/// for a size that is not set.
void chooseFonts() {
  NSMutableDictionary* defaults = [NSMutableDictionary dictionary];
  for (NSString* font :
       {@"NSFont", @"NSUserFont", @"NSControlContentFont", @"NSLabelFont", @"NSMenuFont",
        @"NSMessageFont", @"NSPaletteFont", @"NSTitleBarFont", @"NSToolTipsFont"}) {
    [defaults setObject:@"DejaVuSans" forKey:font];
    [defaults setObject:@"12" forKey:[font stringByAppendingString:@"Size"]];
  }
  [defaults setObject:@"DejaVuSans-Bold" forKey:@"NSBoldFont"];
  [defaults setObject:@"12" forKey:@"NSBoldFontSize"];
  [[NSUserDefaults standardUserDefaults] registerDefaults:defaults];
}

}  // namespace

Application::Application() : pool_([[NSAutoreleasePool alloc] init]) {
  NSSetUncaughtExceptionHandler(printUncaught);
  chooseFonts();
  [NSApplication sharedApplication];
}

Application::~Application() {
  [static_cast<NSAutoreleasePool*>(pool_) drain];
}

}  // namespace appkit_test

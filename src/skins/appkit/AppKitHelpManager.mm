#include "skins/appkit/AppKitHelpManager.h"

#import <AppKit/AppKit.h>

#include "skins/appkit/FoundationBundle.h"
#include "skins/appkit/Strings.h"
#include "ui/HelpPage.h"
#include "ui/Log.h"

#ifdef GNUSTEP
/// Not every version of GNUstep has these.
@interface NSHelpManager (Velk_Books)
- (void)openHelpAnchor:(NSString*)anchor inBook:(NSString*)book;
- (BOOL)registerBooksInBundle:(NSBundle*)bundle;
@end
#endif

namespace ui::appkit {

namespace {

/// Registers the bundle's help books, as is necessary for any bundle but an application's. Returns
/// whether the help manager can open them.
bool registerBooks(NSHelpManager* manager, NSBundle* bundle) {
  return [manager respondsToSelector:@selector(openHelpAnchor:inBook:)] &&
         (![manager respondsToSelector:@selector(registerBooksInBundle:)] ||
          [manager registerBooksInBundle:bundle] == YES);
}

}  // namespace

void AppKitHelpManager::openHelpAnchor(const std::string& anchor, const std::string& book) {
  NSHelpManager* manager = [NSHelpManager sharedHelpManager];
  if (registerBooks(manager, bundle_.native())) {
    [manager openHelpAnchor:nsString(anchor) inBook:nsString(book)];
    return;
  }
  const std::filesystem::path page = helpPage(bundle_);
  NSString* url = [[[NSURL fileURLWithPath:nsString(page.string())] absoluteString]
      stringByAppendingFormat:@"#%@", nsString(anchor)];
  if (![[NSWorkspace sharedWorkspace] openURL:[NSURL URLWithString:url]]) {
    log("Unable to open help page " + page.string());
  }
}

}  // namespace ui::appkit

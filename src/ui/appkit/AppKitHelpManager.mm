#include "ui/appkit/AppKitHelpManager.h"

#import <AppKit/AppKit.h>

#include "ui/Bundle.h"
#include "ui/HelpPage.h"
#include "ui/Log.h"
#include "ui/appkit/Strings.h"

#ifdef GNUSTEP
/// Not every version of the toolkit has it.
@interface NSHelpManager (Velk_Books)
- (void)openHelpAnchor:(NSString*)anchor inBook:(NSString*)book;
@end
#endif

namespace ui::appkit {

void AppKitHelpManager::openHelpAnchor(const std::string& anchor, const std::string& book) {
  NSHelpManager* manager = [NSHelpManager sharedHelpManager];
  if ([manager respondsToSelector:@selector(openHelpAnchor:inBook:)]) {
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

#include "skins/appkit/Strings.h"

namespace ui::appkit {

NSString* nsString(std::string_view utf8) {
  NSString* text = [[[NSString alloc] initWithBytes:utf8.data()
                                             length:utf8.size()
                                           encoding:NSUTF8StringEncoding] autorelease];
  return text != nil ? text : @"";
}

std::string utf8(NSString* text) {
  const char* bytes = [text UTF8String];
  return bytes != nullptr ? bytes : "";
}

}  // namespace ui::appkit

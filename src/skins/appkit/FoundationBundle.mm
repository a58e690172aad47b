#include "skins/appkit/FoundationBundle.h"

#include "skins/appkit/Strings.h"
#include "ui/Captions.h"

namespace ui::appkit {

namespace {

/// The language whose strings table the system would use.
std::vector<std::string> languagesOf(NSBundle* bundle) {
  NSString* table = [bundle pathForResource:nsString(kStringsTable) ofType:@"strings"];
  NSString* folder = [[table stringByDeletingLastPathComponent] lastPathComponent];
  return {utf8([folder stringByDeletingPathExtension])};
}

}  // namespace

FoundationBundle::FoundationBundle(NSBundle* bundle)
    : Bundle(utf8([bundle resourcePath]), languagesOf(bundle)), bundle_(bundle) {}

std::string FoundationBundle::localizedString(std::string_view key, std::string_view table) const {
  return utf8([bundle_.get() localizedStringForKey:nsString(key) value:@"" table:nsString(table)]);
}

}  // namespace ui::appkit

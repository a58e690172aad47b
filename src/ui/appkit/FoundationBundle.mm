#include "ui/appkit/FoundationBundle.h"

#include "ui/appkit/Strings.h"

namespace ui::appkit {

namespace {

std::vector<std::string> languagesOf(NSBundle* bundle) {
  std::vector<std::string> languages;
  NSEnumerator* names = [[bundle preferredLocalizations] objectEnumerator];
  while (NSString* name = [names nextObject]) {
    languages.push_back(utf8(name));
  }
  return languages;
}

}  // namespace

FoundationBundle::FoundationBundle(NSBundle* bundle)
    : Bundle(utf8([bundle resourcePath]), languagesOf(bundle)), bundle_(bundle) {}

std::string FoundationBundle::localizedString(std::string_view key, std::string_view table) const {
  return utf8([bundle_.get() localizedStringForKey:nsString(key) value:@"" table:nsString(table)]);
}

}  // namespace ui::appkit

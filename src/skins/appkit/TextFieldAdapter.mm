#include "skins/appkit/TextFieldAdapter.h"

#include "skins/appkit/Colors.h"
#include "skins/appkit/Strings.h"
#include "ui/Localization.h"

namespace ui::appkit {

namespace {

bool isBold(NSFont* font) {
  return [[font fontName] isEqualToString:[[NSFont boldSystemFontOfSize:0] fontName]];
}

}  // namespace

TextFieldAdapter::TextFieldAdapter(NSTextField* field, const Localization& localization)
    : Adapter(field), localization_(localization), strong_(isBold([field font])) {}

void TextFieldAdapter::setStringValue(const std::string& text) {
  [control() setStringValue:nsString(text)];
}

void TextFieldAdapter::setIntegerValue(std::int64_t value) {
  setStringValue(localization_.plain(value));
}

void TextFieldAdapter::setFloatValue(float value) {
  [control() setFloatValue:value];
}

void TextFieldAdapter::setTextColor(const Color& color) {
  const CGFloat size = [[control() font] pointSize];
  NSFont* font = nil;
  if (color == Color::black() && !strong_) {
    font = [NSFont systemFontOfSize:size];
  } else {
    font = [NSFont boldSystemFontOfSize:size];
  }
  [control() setFont:font];
  [control() setTextColor:textColor(color)];
}

}  // namespace ui::appkit

#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace ui::appkit {

/// Bytes that are not UTF-8 give an empty string.
NSString* nsString(std::string_view utf8);
/// Null gives an empty text.
std::string utf8(NSString* text);

}  // namespace ui::appkit

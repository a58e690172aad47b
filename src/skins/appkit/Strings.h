#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace ui::appkit {

/// Autoreleased. Empty if the bytes are not valid UTF-8.
NSString* nsString(std::string_view utf8);
/// Empty for nil.
std::string utf8(NSString* text);

}  // namespace ui::appkit

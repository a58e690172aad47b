#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

/// Key label to the names of the notifications that the key posts, in order.
using KeyBindings = std::map<std::string, std::vector<std::string_view>, std::less<>>;

/// The bindings of every view; nothing changes them.
KeyBindings defaultKeyBindings();

}  // namespace velk

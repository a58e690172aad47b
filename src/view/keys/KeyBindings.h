#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

/// Maps a key's label to the names of the notifications that the key posts, in order.
using KeyBindings = std::map<std::string, std::vector<std::string_view>, std::less<>>;

/// The bindings that every view has; users cannot change them.
KeyBindings defaultKeyBindings();

}  // namespace velk

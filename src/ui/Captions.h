#pragma once

#include <string>
#include <string_view>

#include "ui/Export.h"

namespace ui {

class Bundle;

/// The strings table with every text that users see.
inline constexpr const char* kStringsTable = "AUDravoAACStrings";

/// A caption of an interface file in the user's language. An empty caption stays empty.
UI_EXPORT std::string caption(const Bundle& bundle, std::string_view key);

/// An accessible name made of several captions separated by commas, each looked up by itself.
UI_EXPORT std::string captionParts(const Bundle& bundle, std::string_view keys);

}  // namespace ui

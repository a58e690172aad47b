#pragma once

#include <string>
#include <string_view>

#include "ui/Export.h"

namespace ui {

class Bundle;

/// The table that holds all texts of the views.
inline constexpr const char* kStringsTable = "AUDravoAACStrings";

/// A caption of an interface file in the user's language; an empty one stays empty.
UI_EXPORT std::string caption(const Bundle& bundle, std::string_view key);

/// An accessible name that is put together from several captions, looked up part by part as commas
/// separate them.
UI_EXPORT std::string captionParts(const Bundle& bundle, std::string_view keys);

}  // namespace ui

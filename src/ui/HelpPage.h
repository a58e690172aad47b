#pragma once

#include <filesystem>

#include "ui/Export.h"

namespace ui {

class Bundle;

/// The bundle's help page in its language, or the default page if there is none.
UI_EXPORT std::filesystem::path helpPage(const Bundle& bundle);

}  // namespace ui

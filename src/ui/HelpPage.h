#pragma once

#include <filesystem>

#include "ui/Export.h"

namespace ui {

class Bundle;

/// The bundle's help page in the language that is used, or the one that stands for all others.
UI_EXPORT std::filesystem::path helpPage(const Bundle& bundle);

}  // namespace ui

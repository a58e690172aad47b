#pragma once

#import <AppKit/AppKit.h>

#include <filesystem>
#include <optional>

#include "ui/Sheets.h"

namespace ui::appkit {

/// Runs the system's save panel modally. Returns the chosen file, or nothing if the user cancelled.
std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts);

}  // namespace ui::appkit

#pragma once

#include <filesystem>
#include <optional>

#include "ui/Sheets.h"

class QWidget;

namespace ui::qt {

/// Runs Qt's or the desktop's save dialog over `parent` until the user answers. Returns nothing if
/// the user cancelled, or if the parent was destroyed in the meantime.
std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts, QWidget& parent);

}  // namespace ui::qt

#pragma once

#include <filesystem>
#include <optional>

#include "ui/Sheets.h"

class QWidget;

namespace ui::qt {

/// Runs Qt's or the desktop's save dialog over `parent` until the user has answered. Nothing when
/// he cancelled, or when the parent went away meanwhile.
std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts, QWidget& parent);

}  // namespace ui::qt

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace qt_test {

/// Answers the save panel that runs, with a file or with Cancel, on the keyboard. The name that it
/// proposed; nothing when none runs.
std::optional<std::string> answerSavePanel(const std::optional<std::filesystem::path>& file);

}  // namespace qt_test

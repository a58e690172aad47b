#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace qt_test {

/// Answers the open save panel by keyboard, with a file or with Cancel. Returns the name that the
/// panel proposed, or nothing if none is open.
std::optional<std::string> answerSavePanel(const std::optional<std::filesystem::path>& file);

}  // namespace qt_test

#pragma once

#include <filesystem>
#include <string_view>

namespace ui::appkit {

/// Foundation's way of `ui::writeMacRoman`.
bool writeMacRoman(const std::filesystem::path& file, std::string_view utf8);

}  // namespace ui::appkit

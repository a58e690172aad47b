#pragma once

#include <filesystem>
#include <string_view>

namespace ui::appkit {

/// `ui::writeMacRoman` by means of Foundation.
bool writeMacRoman(const std::filesystem::path& file, std::string_view utf8);

}  // namespace ui::appkit

#pragma once

#include <filesystem>
#include <string_view>

#include "ui/Export.h"

namespace ui {

/// Writes a text file in the Mac OS Roman encoding, without a byte-order mark and with the line
/// ends that the text has. True when the whole text is safely on disk.
///
/// All or nothing: on false a file that was there is as it was, and nothing else stays behind.
/// False for a text that is not UTF-8 or holds a character that Mac OS Roman lacks, for a file or
/// folder that the user may not write, and for anything that is no plain file. A file that is there
/// keeps its permissions; a symbolic link keeps pointing at the file that is written. Never throws.
UI_EXPORT bool writeMacRoman(const std::filesystem::path& file, std::string_view utf8) noexcept;

}  // namespace ui

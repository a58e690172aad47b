#pragma once

#include <filesystem>
#include <string_view>

#include "ui/Export.h"

namespace ui {

/// Writes a text file in the Mac OS Roman encoding, without a byte-order mark and with the text's
/// own line ends. True once the whole text is safely on disk.
///
/// All or nothing: on false an existing file is unchanged and nothing else is left behind. False
/// for a text that is not UTF-8 or has a character that Mac OS Roman lacks, for a file or folder
/// that the user may not write, and for anything but a regular file. An existing file keeps its
/// permissions; a symbolic link keeps pointing at the file written. Never throws.
UI_EXPORT bool writeMacRoman(const std::filesystem::path& file, std::string_view utf8) noexcept;

}  // namespace ui

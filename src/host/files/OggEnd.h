#pragma once

#include <filesystem>

namespace host {

/// Whether the file's last Ogg page is there as a whole and marked as the last of its stream (RFC
/// 3533, section 6). A file that cannot be read does not end so.
bool endsWithLastOggPage(const std::filesystem::path& path);

}  // namespace host

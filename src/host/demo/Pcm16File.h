#pragma once

#include <filesystem>

#include "host/demo/Stereo.h"

namespace host::demo {

/// Writes the mix as a 16-bit WAV file, whole or not at all. Equal mixes are equal files. Throws
/// `Failure`.
void writePcm16(const Stereo& mix, const std::filesystem::path& path);

}  // namespace host::demo

#pragma once

#include <filesystem>

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// Writes the mix as a 16-bit WAV file, whole or not at all. Equal mixes give equal files. Throws
/// `Failure`.
void writePcm16(const Stereo& mix, const std::filesystem::path& path);

}  // namespace host::demo_mix

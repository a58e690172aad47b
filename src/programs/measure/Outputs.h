#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/unit/EncoderSetting.h"

namespace host::measure {

/// Names for what is written for each file, all in one folder wherever the files are: the file's
/// own name without its extension; where files would share a name, the later ones get a number.
std::vector<std::string> outputNames(const std::vector<std::filesystem::path>& files);

/// "mix.aac-vbrc-256.m4a" for "mix" and ".m4a".
std::string outputName(const std::string& name, const EncoderSetting& setting,
                       const std::string& ending);

/// Makes the folder if there is none. Throws `Failure`.
void makeFolder(const std::filesystem::path& folder);

}  // namespace host::measure

#pragma once

namespace host {

/// The version of both programs: the project's, which the top CMakeLists.txt gives.
extern const char* const kVersion;

}  // namespace host

#pragma once

namespace host {

/// Of both programs.
inline constexpr const char* kVersion = "0.1.0";

}  // namespace host

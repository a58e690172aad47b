#pragma once

namespace velk {

/// The strings table of the bundle with every text that users see.
inline constexpr const char* kStringsTable = "AUDravoAACStrings";

}  // namespace velk

#pragma once

namespace host::audition {

/// What distances between the window's parts are multiples of, in device-independent pixels.
inline constexpr int kGrid = 8;

}  // namespace host::audition

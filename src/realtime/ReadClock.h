#pragma once

#include <chrono>
#include <functional>

namespace realtime {

/// Reads a steady clock; never blocks. Another one stands in where a test or a host keeps the time.
using ReadClock = std::function<std::chrono::steady_clock::time_point()>;

}  // namespace realtime

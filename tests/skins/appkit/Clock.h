#pragma once

#include <chrono>

/// The clocks of the whole process: the standard library's and the toolkit's dates and timers.
namespace appkit_test {

using Moment = std::chrono::steady_clock::time_point;

/// Stops the clocks; from now on only `passTime` advances them. Call once.
void stopClocks();
/// Advances the stopped clocks. Main thread only.
void passTime(std::chrono::nanoseconds time);

/// The machine's own steady clock, which none of this changes.
Moment realTime();

}  // namespace appkit_test

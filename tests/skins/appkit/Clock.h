#pragma once

#include <chrono>

/// The clocks of the process, as everything in it reads them: the toolkit's dates and timers and
/// the standard library's clocks alike.
namespace appkit_test {

using Moment = std::chrono::steady_clock::time_point;

/// From now on no time passes but what `passTime` lets pass. Once.
void stopClocks();
/// Main thread.
void passTime(std::chrono::nanoseconds time);

/// What no call here changes: the machine's own steady clock.
Moment realTime();

}  // namespace appkit_test

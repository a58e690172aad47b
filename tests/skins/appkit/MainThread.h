#pragma once

#include <chrono>
#include <functional>

/// Tests are written as if a sheet were open beside them, but on GNUstep the call that shows one
/// returns only when it has ended. So tests run on a thread of their own. The application's main
/// thread stands still while they do, wherever in its loops it is, and only works when it is told
/// to.
///
/// No time passes of itself, for nobody in the process: where the application's run loop would
/// wait, the clocks jump ahead.
namespace appkit_test {

/// Runs the application with `script` on a thread of its own, and gives what that returned. Main
/// thread, once.
int runApplication(const std::function<int()>& script);

/// Runs the work on the main thread. What it throws is thrown here. Where the work itself lets a
/// run loop run, that time passes. Script thread only.
void onMain(const std::function<void()>& work);

template <class Work>
auto askMain(Work work) {
  decltype(work()) answer{};
  onMain([&] { answer = work(); });
  return answer;
}

/// Lets the application's run loop run until so much time has passed for it, without waiting.
/// Script thread only.
void runFor(std::chrono::milliseconds time);
/// The same, but the time is that of the machine.
void runInRealTimeFor(std::chrono::milliseconds time);

}  // namespace appkit_test

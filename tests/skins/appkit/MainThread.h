#pragma once

#include <chrono>
#include <functional>

/// Tests expect to go on while a sheet is open, but on GNUstep the call that shows one returns only
/// when the sheet has ended. So tests run on a thread of their own, the script thread. Meanwhile
/// the application's main thread stands still, in whichever of its loops it is, and only does what
/// it is asked to do.
///
/// Time does not pass by itself anywhere in the process: where the application's run loop would
/// wait, the clocks jump ahead.
namespace appkit_test {

/// Runs the application, with `script` on a thread of its own, and returns the script's result.
/// Call once, on the main thread.
int runApplication(const std::function<int()>& script);

/// Runs the work on the main thread and rethrows here what it throws. If the work itself runs a run
/// loop, the clocks advance by the time for which that would wait. Script thread only.
void onMain(const std::function<void()>& work);

/// Does the same and returns the work's result.
template <class Work>
auto askMain(Work work) {
  decltype(work()) answer{};
  onMain([&] { answer = work(); });
  return answer;
}

/// Runs the application's run loop until that much of its time has passed, without really waiting.
/// Script thread only.
void runFor(std::chrono::milliseconds time);
/// Does the same in real time.
void runInRealTimeFor(std::chrono::milliseconds time);

}  // namespace appkit_test

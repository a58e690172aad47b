#include "host/messages/QuietCall.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <sched.h>
#include <unistd.h>

#include <exception>
#include <limits>
#include <system_error>
#include <thread>

namespace host {
namespace {

/// Gives the calling thread a descriptor table of its own. Closing a range that holds no descriptor
/// does so too, and sandboxes that forbid the one allow the other.
bool takeOwnDescriptors() {
  constexpr auto none = std::numeric_limits<unsigned>::max();
  return ::unshare(CLONE_FILES) == 0 || ::close_range(none, none, CLOSE_RANGE_UNSHARE) == 0;
}

void pointStandardErrorNowhere() {
  const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nowhere < 0) return;
  ::dup2(nowhere, STDERR_FILENO);
  ::close(nowhere);
}

}  // namespace

void callQuietly(const std::function<void()>& work) {
  std::exception_ptr error;
  std::thread thread;
  try {
    thread = std::thread([&] {
      if (takeOwnDescriptors()) pointStandardErrorNowhere();
      try {
        work();
      } catch (...) {
        error = std::current_exception();
      }
    });
  } catch (const std::system_error&) {
    // Too many threads: better loud than not at all.
    return work();
  }
  thread.join();
  if (error) std::rethrow_exception(error);
}

}  // namespace host

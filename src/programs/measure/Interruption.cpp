#include "programs/measure/Interruption.h"

#include <atomic>
#include <csignal>
#include <initializer_list>

namespace host::measure {
namespace {

std::atomic<int> caught{0};
static_assert(std::atomic<int>::is_always_lock_free);

}  // namespace

void catchInterruptions() {
  struct sigaction action = {};
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  action.sa_handler = [](int signal) { caught = signal; };
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction before = {};
    ::sigaction(signal, nullptr, &before);
    // What the parent has ignored, as nohup does, stays ignored.
    if (before.sa_handler != SIG_IGN) ::sigaction(signal, &action, nullptr);
  }
  action.sa_handler = SIG_IGN;
  for (const int signal : {SIGPIPE, SIGXFSZ}) ::sigaction(signal, &action, nullptr);
}

int interruption() {
  return caught;
}

void stopIfInterrupted() {
  if (interruption() != 0) throw Interrupted();
}

}  // namespace host::measure

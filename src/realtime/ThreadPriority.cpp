#include "realtime/ThreadPriority.h"

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>

namespace realtime {
namespace {

/// The first nice value to try, ahead of most of a desktop; then ever weaker ones.
constexpr int kBestNice = -11;

/// On Linux each thread has a nice value of its own, and 0 stands for the calling thread.
bool setNice(int nice) {
  return setpriority(PRIO_PROCESS, 0, nice) == 0;
}

}  // namespace

ThreadPriority raiseThreadPriority() {
  sched_param lowest{};
  lowest.sched_priority = sched_get_priority_min(SCHED_RR);
  if (pthread_setschedparam(pthread_self(), SCHED_RR, &lowest) == 0) {
    return ThreadPriority::realTime;
  }
  for (int nice = kBestNice; nice < 0; ++nice) {
    if (setNice(nice)) return ThreadPriority::raised;
  }
  return ThreadPriority::ordinary;
}

void dropThreadPriority() {
  const sched_param none{};
  pthread_setschedparam(pthread_self(), SCHED_OTHER, &none);
  if (getpriority(PRIO_PROCESS, 0) < 0) setNice(0);
}

}  // namespace realtime

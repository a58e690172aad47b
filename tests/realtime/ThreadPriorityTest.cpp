#include <gtest/gtest.h>
#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>

#include <thread>

#include "realtime/ThreadPriority.h"

namespace {

using realtime::dropThreadPriority;
using realtime::raiseThreadPriority;
using realtime::ThreadPriority;

struct Place {
  int policy = -1;
  int priority = -1;
  int nice = 0;
};

Place placeOfThisThread() {
  Place place;
  sched_param parameters{};
  pthread_getschedparam(pthread_self(), &place.policy, &parameters);
  place.priority = parameters.sched_priority;
  place.nice = getpriority(PRIO_PROCESS, 0);
  return place;
}

/// Runs on a thread of its own, so that the test's own priority stays as it is.
template <typename Work>
void runOnThread(Work work) {
  std::thread(work).join();
}

TEST(ThreadPriority, IsWhatTheSystemSaysItIs) {
  runOnThread([] {
    const int niceBefore = placeOfThisThread().nice;
    const ThreadPriority result = raiseThreadPriority();
    const Place place = placeOfThisThread();
    EXPECT_EQ(result == ThreadPriority::realTime, place.policy == SCHED_RR);
    const int lowest = sched_get_priority_min(SCHED_RR);
    EXPECT_EQ(place.priority, result == ThreadPriority::realTime ? lowest : 0);
    EXPECT_EQ(place.nice < niceBefore, result == ThreadPriority::raised);
  });
}

TEST(ThreadPriority, IsOrdinaryAgainAfterItWasDropped) {
  runOnThread([] {
    raiseThreadPriority();
    dropThreadPriority();
    const Place place = placeOfThisThread();
    EXPECT_EQ(place.policy, SCHED_OTHER);
    EXPECT_GE(place.nice, 0);
  });
}

TEST(ThreadPriority, OfOtherThreadsStaysAsItIs) {
  const Place before = placeOfThisThread();
  runOnThread([] { raiseThreadPriority(); });
  const Place after = placeOfThisThread();
  EXPECT_EQ(after.policy, before.policy);
  EXPECT_EQ(after.nice, before.nice);
}

}  // namespace

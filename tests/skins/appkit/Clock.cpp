#include "skins/appkit/Clock.h"

#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <atomic>

namespace {

using std::chrono::nanoseconds;

/// The times when the clocks were stopped, and what has passed since then.
std::atomic<bool> areStopped = false;
nanoseconds wallAtStop{};
nanoseconds steadyAtStop{};
std::atomic<nanoseconds> passed{};

/// The machine's own time.
nanoseconds machineTime(clockid_t clock) {
  timespec time{};
  ::syscall(SYS_clock_gettime, clock, &time);
  return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

/// The time that the process sees. Only wall clocks and clocks since boot are stopped, processor
/// time is not.
nanoseconds virtualTime(clockid_t clock) {
  switch (areStopped ? clock : CLOCK_PROCESS_CPUTIME_ID) {
    case CLOCK_REALTIME:
    case CLOCK_REALTIME_COARSE:
      return wallAtStop + passed.load();
    case CLOCK_MONOTONIC:
    case CLOCK_MONOTONIC_COARSE:
    case CLOCK_MONOTONIC_RAW:
    case CLOCK_BOOTTIME:
      return steadyAtStop + passed.load();
    default:
      return machineTime(clock);
  }
}

}  // namespace

// Replaces the C library's functions for this program and every library that it loads.
extern "C" {

__attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* time) noexcept {
  const nanoseconds now = virtualTime(clock);
  const auto seconds = std::chrono::floor<std::chrono::seconds>(now);
  time->tv_sec = seconds.count();
  time->tv_nsec = (now - seconds).count();
  return 0;
}

__attribute__((visibility("default"))) int gettimeofday(timeval* time, void* /*zone*/) noexcept {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  time->tv_sec = now.tv_sec;
  time->tv_usec = now.tv_nsec / 1000;
  return 0;
}
}

namespace appkit_test {

void stopClocks() {
  wallAtStop = machineTime(CLOCK_REALTIME);
  steadyAtStop = machineTime(CLOCK_MONOTONIC);
  areStopped = true;
}

void passTime(std::chrono::nanoseconds time) {
  passed = passed.load() + time;
}

Moment realTime() {
  return Moment(machineTime(CLOCK_MONOTONIC));
}

}  // namespace appkit_test

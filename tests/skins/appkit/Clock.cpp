#include "skins/appkit/Clock.h"

#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <atomic>

namespace {

using std::chrono::nanoseconds;

/// When the clocks were stopped; what has passed since then.
std::atomic<bool> areStopped = false;
nanoseconds wallAtStop{};
nanoseconds steadyAtStop{};
std::atomic<nanoseconds> passed{};

nanoseconds asked(clockid_t clock) {
  timespec time{};
  ::syscall(SYS_clock_gettime, clock, &time);
  return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

/// Time of day and time since the machine's start; processor times go on as they are.
nanoseconds shown(clockid_t clock) {
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
      return asked(clock);
  }
}

}  // namespace

// The C library's, for every library that this program loads. Whoever reads the time reads it here.
extern "C" {

__attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* time) noexcept {
  const nanoseconds now = shown(clock);
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
  wallAtStop = asked(CLOCK_REALTIME);
  steadyAtStop = asked(CLOCK_MONOTONIC);
  areStopped = true;
}

void passTime(std::chrono::nanoseconds time) {
  passed = passed.load() + time;
}

Moment realTime() {
  return Moment(asked(CLOCK_MONOTONIC));
}

}  // namespace appkit_test

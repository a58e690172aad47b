#pragma once

#include <time.h>

#include <algorithm>
#include <vector>

namespace figures {

inline double secondsOf(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// Processor time of all threads of the process, so that other programs do not count.
inline double processorSeconds() {
  return secondsOf(CLOCK_PROCESS_CPUTIME_ID);
}
inline double threadSeconds() {
  return secondsOf(CLOCK_THREAD_CPUTIME_ID);
}
inline double wallSeconds() {
  return secondsOf(CLOCK_MONOTONIC);
}

inline double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace figures

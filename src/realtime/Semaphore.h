#pragma once

#include <semaphore.h>
#include <time.h>

#include <cerrno>
#include <chrono>

namespace realtime {

/// A counting semaphore that starts at 0. `release` never blocks, and enters the kernel only when
/// somebody waits.
class Semaphore {
 public:
  Semaphore() { sem_init(&semaphore_, 0, 0); }
  Semaphore(const Semaphore&) = delete;
  Semaphore& operator=(const Semaphore&) = delete;
  ~Semaphore() { sem_destroy(&semaphore_); }

  void release() { sem_post(&semaphore_); }
  void acquire() {
    while (sem_wait(&semaphore_) != 0 && errno == EINTR) {
    }
  }
  /// Returns whether somebody released before `deadline`.
  bool acquireUntil(std::chrono::steady_clock::time_point deadline) {
    const auto sinceStart = deadline.time_since_epoch();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(sinceStart);
    timespec time{};
    time.tv_sec = static_cast<time_t>(seconds.count());
    time.tv_nsec = static_cast<long>(std::chrono::nanoseconds(sinceStart - seconds).count());
    int result = 0;
    while ((result = sem_clockwait(&semaphore_, CLOCK_MONOTONIC, &time)) != 0 && errno == EINTR) {
    }
    return result == 0;
  }

 private:
  sem_t semaphore_{};
};

}  // namespace realtime

#pragma once

#include <semaphore.h>

#include <cerrno>

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

 private:
  sem_t semaphore_{};
};

}  // namespace realtime

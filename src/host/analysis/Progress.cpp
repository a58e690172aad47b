#include "host/analysis/Progress.h"

namespace host {

void Progress::stop() {
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  changed_.notify_all();
}

bool Progress::isStopped() const {
  const std::lock_guard lock(mutex_);
  return stopped_;
}

void Progress::setPaused(bool paused) {
  const std::lock_guard lock(mutex_);
  paused_ = paused;
  changed_.notify_all();
}

bool Progress::goesOn() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [&] { return stopped_ || !paused_; });
  return !stopped_;
}

}  // namespace host

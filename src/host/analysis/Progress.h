#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>

namespace host {

/// Links long work on one thread to whoever watches and stops it from another.
class Progress {
 public:
  /// How much is done, from 0 to 1.
  void set(double share) { share_.store(share, std::memory_order_relaxed); }
  double share() const { return share_.load(std::memory_order_relaxed); }

  void stop();
  bool isStopped() const;
  void setPaused(bool paused);
  /// Waits while the work is paused; false if it is to stop. Called by the working thread.
  bool goesOn();

 private:
  std::atomic<double> share_{0};
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  bool stopped_ = false;
  bool paused_ = false;
};

}  // namespace host

#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "host/analysis/Progress.h"
#include "host/messages/Message.h"

namespace host {

/// Runs work once, on a thread of its own with a low priority.
class BackgroundWork {
 public:
  /// Starts at once. An exception ends the work and becomes its failure.
  explicit BackgroundWork(std::function<void(Progress&)> work);
  BackgroundWork(const BackgroundWork&) = delete;
  BackgroundWork& operator=(const BackgroundWork&) = delete;
  /// Stops the work and waits until it has ended.
  ~BackgroundWork();

  Progress& progress() { return progress_; }
  const Progress& progress() const { return progress_; }
  /// Whether it has ended, for whatever reason.
  bool hasEnded() const { return ended_.load(std::memory_order_acquire); }
  /// Once it has ended: what went wrong; empty if nothing did.
  const Message& failure() const { return failure_; }

 private:
  void run(const std::function<void(Progress&)>& work) noexcept;

  Progress progress_;
  Message failure_;
  std::atomic<bool> ended_{false};
  std::thread thread_;
};

}  // namespace host

#pragma once

#include <condition_variable>
#include <limits>
#include <mutex>

#include "converter/codec/BitStreamSink.h"

/// Holds a unit's worker back at every access unit, so that it is late however fast the machine is.
/// Open at first.
class WorkerGate final : public converter::BitStreamSink {
 public:
  void close() {
    const std::scoped_lock lock(mutex_);
    passes_ = 0;
  }
  /// Lets `units` more access units through.
  void letPass(int units) {
    {
      const std::scoped_lock lock(mutex_);
      passes_ += units;
    }
    passed_.notify_one();
  }
  void open() {
    {
      const std::scoped_lock lock(mutex_);
      passes_ = kAll;
    }
    passed_.notify_one();
  }

  void startStream(const converter::BitStream& /*stream*/) noexcept override {}
  void writeAccessUnit(const converter::AccessUnit& /*unit*/) noexcept override {
    std::unique_lock lock(mutex_);
    passed_.wait(lock, [this] { return passes_ > 0; });
    if (passes_ != kAll) --passes_;
  }

 private:
  static constexpr int kAll = std::numeric_limits<int>::max();

  std::mutex mutex_;
  std::condition_variable passed_;
  int passes_ = kAll;
};

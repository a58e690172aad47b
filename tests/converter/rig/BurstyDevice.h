#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>

#include "realtime/ReadClock.h"

/// A device with a buffer that it fills whenever a period has room, in calls of one size. It keeps
/// the time, so that it is as bursty as it likes on any machine.
class BurstyDevice {
 public:
  BurstyDevice(double sampleRate, std::size_t buffer, std::size_t period, std::size_t call)
      : sampleRate_(sampleRate), buffer_(buffer), period_(period), call_(call) {}

  realtime::ReadClock clock() {
    return [this] { return now_; };
  }

  /// The length of the next call. Lets as much time pass before as the buffer is full.
  std::size_t nextCall() {
    if (left_ == 0 && filled_ + period_ > buffer_) {
      filled_ -= period_;
      now_ += std::chrono::duration_cast<std::chrono::steady_clock::duration>(
          std::chrono::duration<double>(static_cast<double>(period_) / sampleRate_));
    }
    if (left_ == 0) {
      left_ = period_;
      filled_ += period_;
    }
    const std::size_t frames = std::min(left_, call_);
    left_ -= frames;
    return frames;
  }

 private:
  double sampleRate_;
  std::size_t buffer_;
  std::size_t period_;
  std::size_t call_;
  std::size_t filled_ = 0;
  std::size_t left_ = 0;
  std::chrono::steady_clock::time_point now_{std::chrono::hours(1)};
};

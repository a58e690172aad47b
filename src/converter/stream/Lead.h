#pragma once

#include <chrono>
#include <utility>

#include "converter/transcoder/AudioBlock.h"
#include "realtime/ReadClock.h"

namespace converter {

/// How far whoever renders is ahead of the clock: the audio that was asked for so far, less the
/// time that has gone by. A device plays what it has asked for, so this much of it lies in its
/// buffer at least, and may be spent on waiting. In strict real time it is next to nothing. Audio
/// thread.
class Lead {
 public:
  Lead(double sampleRate, realtime::ReadClock readClock)
      : sampleRate_(sampleRate), readClock_(std::move(readClock)) {}

  /// Counts a request of `frames`. Returns how long it may be kept waiting at most.
  std::chrono::steady_clock::duration take(UInt32 frames) noexcept;

  /// Starts anew, as after a pause.
  void clear() noexcept { seconds_ = 0; }

 private:
  double sampleRate_;
  realtime::ReadClock readClock_;
  std::chrono::steady_clock::time_point last_{};
  double seconds_ = 0;
};

}  // namespace converter

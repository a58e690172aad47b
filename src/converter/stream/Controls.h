#pragma once

#include <atomic>

#include "converter/codec/Setting.h"

namespace converter {

/// What other threads ask of the audio thread, which looks at the start of every block, and what
/// the audio thread counts for them.
struct Controls {
  std::atomic<Setting> setting{Setting{}};
  std::atomic<bool> monitorSource{false};
  std::atomic<bool> offline{false};
  std::atomic<bool> metering{true};
  std::atomic<UInt64> missedFrames{0};
};

}  // namespace converter

#pragma once

#include <atomic>

#include "converter/codec/Setting.h"

namespace converter {

/// Requests from other threads to the audio thread, which reads them at the start of every block,
/// and what the audio thread counts for them.
struct RenderControls {
  std::atomic<Setting> setting{Setting{}};
  std::atomic<bool> monitorSource{false};
  std::atomic<bool> offline{false};
  std::atomic<bool> metering{true};
  /// Whether no hole may tell which signal is heard.
  std::atomic<bool> listeningTest{false};
  std::atomic<UInt64> missedFrames{0};
};

}  // namespace converter

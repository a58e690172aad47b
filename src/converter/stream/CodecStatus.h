#pragma once

#include <atomic>

#include "converter/transcoder/BlockTranscoder.h"

namespace converter {

/// The worker's newest report of its codec, for any thread.
class CodecStatus {
 public:
  /// Worker thread.
  void publish(const CodecReport& report);

  BitRate bitRate() const;
  UInt64 failures() const { return failures_.load(std::memory_order_relaxed); }

  /// What carries `asked`: itself, unless no codec could be opened for it and another one goes on.
  Setting carrying(const Setting& asked) const;

 private:
  /// A `BitRate`, whose own alignment is too small for one atomic word.
  std::atomic<UInt64> bitRate_{0};
  std::atomic<UInt64> failures_{0};
  std::atomic<bool> carriesAnother_{false};
  std::atomic<Setting> inUse_{Setting{}};
  std::atomic<Setting> refused_{Setting{}};
};

}  // namespace converter

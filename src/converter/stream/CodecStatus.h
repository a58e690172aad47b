#pragma once

#include <atomic>

#include "converter/transcoder/BlockTranscoder.h"

namespace converter {

/// The worker's latest report on its codec. Any thread may read it.
class CodecStatus {
 public:
  /// Worker thread.
  void publish(const CodecReport& report);

  BitRate bitRate() const;
  UInt64 failures() const { return failures_.load(std::memory_order_relaxed); }

  /// The setting used for `asked`: `asked` itself, unless no codec could be opened for it and the
  /// one before goes on.
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

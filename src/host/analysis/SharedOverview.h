#pragma once

#include <cstdint>
#include <mutex>
#include <vector>

#include "host/analysis/WaveformOverview.h"

namespace host {

/// A waveform's overview that one thread draws while others fill it. Any thread.
class SharedOverview {
 public:
  explicit SharedOverview(std::uint32_t channels) : channels_(channels), overview_(channels) {}

  std::uint32_t channels() const { return channels_; }
  void append(const float* interleaved, std::size_t frames);
  void addOvers(Signal signal, std::uint32_t channel, std::int64_t frame, std::uint32_t count);
  void clearOvers(Signal signal);

  /// A number that differs after every change.
  std::uint64_t revision() const;
  std::vector<WaveformColumn> columns(std::uint32_t channel, std::int64_t begin, std::int64_t end,
                                      std::size_t count) const;

 private:
  const std::uint32_t channels_;
  mutable std::mutex mutex_;
  std::uint64_t revision_ = 0;
  WaveformOverview overview_;
};

}  // namespace host

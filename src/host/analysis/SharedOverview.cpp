#include "host/analysis/SharedOverview.h"

namespace host {

void SharedOverview::append(const float* interleaved, std::size_t frames) {
  const std::lock_guard lock(mutex_);
  overview_.append(interleaved, frames);
  ++revision_;
}

void SharedOverview::addOvers(Signal signal, std::uint32_t channel, std::int64_t frame,
                              std::uint32_t count) {
  const std::lock_guard lock(mutex_);
  overview_.addOvers(signal, channel, frame, count);
  ++revision_;
}

void SharedOverview::clearOvers(Signal signal) {
  const std::lock_guard lock(mutex_);
  overview_.clearOvers(signal);
  ++revision_;
}

std::uint64_t SharedOverview::revision() const {
  const std::lock_guard lock(mutex_);
  return revision_;
}

std::vector<WaveformColumn> SharedOverview::columns(std::uint32_t channel, std::int64_t begin,
                                                    std::int64_t end, std::size_t count) const {
  const std::lock_guard lock(mutex_);
  return overview_.columns(channel, begin, end, count);
}

}  // namespace host

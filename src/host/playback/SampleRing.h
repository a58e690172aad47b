#pragma once

#include <atomic>
#include <cstddef>
#include <vector>

namespace host {

/// Samples on their way from one thread to one other. Nothing here allocates, locks or waits.
class SampleRing {
 public:
  explicit SampleRing(std::size_t capacity);

  /// Samples that can be read. Exact on the reading thread, never too many.
  std::size_t readable() const noexcept;
  /// Samples that can be written. Exact on the writing thread, never too many.
  std::size_t writable() const noexcept;
  /// Writes `count` samples, at most `writable()`. Writing thread.
  void write(const float* samples, std::size_t count) noexcept;
  /// Reads `count` samples, at most `readable()`. Reading thread.
  void read(float* samples, std::size_t count) noexcept;
  /// Forgets everything. While neither thread is at it.
  void clear() noexcept;

 private:
  std::vector<float> samples_;
  alignas(64) std::atomic<std::size_t> written_{0};
  alignas(64) std::atomic<std::size_t> read_{0};
};

}  // namespace host

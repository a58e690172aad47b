#include "host/playback/SampleRing.h"

#include <algorithm>

namespace host {

SampleRing::SampleRing(std::size_t capacity) : samples_(std::max<std::size_t>(capacity, 1)) {}

std::size_t SampleRing::readable() const noexcept {
  return written_.load(std::memory_order_acquire) - read_.load(std::memory_order_acquire);
}

std::size_t SampleRing::writable() const noexcept {
  return samples_.size() - readable();
}

void SampleRing::write(const float* samples, std::size_t count) noexcept {
  const auto written = written_.load(std::memory_order_relaxed);
  const auto begin = written % samples_.size();
  const auto first = std::min(count, samples_.size() - begin);
  std::copy_n(samples, first, samples_.data() + begin);
  std::copy_n(samples + first, count - first, samples_.data());
  written_.store(written + count, std::memory_order_release);
}

void SampleRing::read(float* samples, std::size_t count) noexcept {
  const auto read = read_.load(std::memory_order_relaxed);
  const auto begin = read % samples_.size();
  const auto first = std::min(count, samples_.size() - begin);
  std::copy_n(samples_.data() + begin, first, samples);
  std::copy_n(samples_.data(), count - first, samples + first);
  read_.store(read + count, std::memory_order_release);
}

void SampleRing::clear() noexcept {
  written_.store(0, std::memory_order_relaxed);
  read_.store(0, std::memory_order_relaxed);
}

}  // namespace host

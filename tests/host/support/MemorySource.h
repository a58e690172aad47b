#pragma once

#include <algorithm>
#include <utility>

#include "Sound.h"
#include "host/files/AudioSource.h"

/// A source that holds its sound, or promises more than it holds.
class MemorySource : public host::AudioSource {
 public:
  explicit MemorySource(Sound sound, std::int64_t missing = 0)
      : sound_(std::move(sound)), missing_(missing) {}

  host::AudioFormat format() const override {
    return {sound_.sampleRate, static_cast<std::uint32_t>(sound_.channels())};
  }
  std::int64_t frames() const override {
    return static_cast<std::int64_t>(sound_.frames()) + missing_;
  }
  std::size_t read(float* interleaved, std::size_t frames) override {
    const auto count = std::min(frames, sound_.frames() - at_);
    for (std::size_t i = 0; i < count; ++i, ++at_) {
      for (const auto& plane : sound_.planes) *interleaved++ = plane[at_];
    }
    return count;
  }
  void seek(std::int64_t frame) override {
    at_ = std::min(static_cast<std::size_t>(frame), sound_.frames());
  }

 private:
  Sound sound_;
  std::int64_t missing_;
  std::size_t at_ = 0;
};

#pragma once

#include <cstddef>
#include <cstdint>

namespace host {

struct AudioFormat {
  /// Hz.
  std::uint32_t sampleRate = 0;
  std::uint32_t channels = 0;

  friend bool operator==(const AudioFormat&, const AudioFormat&) = default;
};

/// Audio that is read in order, with a place to read from. One thread at a time.
class AudioSource {
 public:
  AudioSource() = default;
  AudioSource(const AudioSource&) = delete;
  AudioSource& operator=(const AudioSource&) = delete;
  virtual ~AudioSource() = default;

  virtual AudioFormat format() const = 0;
  /// The length that the source promises. Damaged sources end earlier.
  virtual std::int64_t frames() const = 0;
  /// Reads up to `frames` interleaved frames. Fewer than asked for means that the end was reached.
  virtual std::size_t read(float* interleaved, std::size_t frames) = 0;
  /// The frame that the next `read` begins with, from 0 to `frames()`.
  virtual void seek(std::int64_t frame) = 0;
};

}  // namespace host

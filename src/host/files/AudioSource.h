#pragma once

#include <cstddef>
#include <cstdint>

namespace host {

struct AudioFormat {
  /// In Hz.
  std::uint32_t sampleRate = 0;
  std::uint32_t channels = 0;

  friend bool operator==(const AudioFormat&, const AudioFormat&) = default;
};

/// Audio that is read in order from a position that can be moved. One thread at a time.
class AudioSource {
 public:
  AudioSource() = default;
  AudioSource(const AudioSource&) = delete;
  AudioSource& operator=(const AudioSource&) = delete;
  virtual ~AudioSource() = default;

  virtual AudioFormat format() const = 0;
  /// The length that the source promises; a damaged one ends earlier.
  virtual std::int64_t frames() const = 0;
  /// Reads up to `frames` interleaved frames. Fewer than asked for means that the end has been
  /// reached.
  virtual std::size_t read(float* interleaved, std::size_t frames) = 0;
  /// Makes the next `read` start at this frame, from 0 to `frames()`.
  virtual void seek(std::int64_t frame) = 0;
};

}  // namespace host

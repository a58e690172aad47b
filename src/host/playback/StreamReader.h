#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/playback/LoopingSource.h"
#include "realtime/SpscRing.h"

namespace host {

/// Reads a source ahead of time on a thread of its own, so that the audio thread always finds the
/// next frames in memory.
class StreamReader {
 public:
  explicit StreamReader(std::unique_ptr<AudioSource> source);
  StreamReader(const StreamReader&) = delete;
  StreamReader& operator=(const StreamReader&) = delete;
  ~StreamReader();

  AudioFormat format() const { return format_; }
  std::int64_t frames() const { return frames_; }

  /// The frames that `read` could return now. Reading thread.
  std::size_t readable() const noexcept { return ring_.readable() / format_.channels; }
  /// Takes up to `frames` interleaved frames and returns their number; fewer if the decoder cannot
  /// keep up or the source has ended. Never waits. Reading thread.
  std::size_t read(float* interleaved, std::size_t frames) noexcept;
  /// Whether everything up to the source's end is readable already. Any thread.
  bool hasEnded() const noexcept { return ended_.load(std::memory_order_acquire); }

  /// Waits until `frames` frames can be read, the buffer of two seconds is full, or the source has
  /// ended. Reading thread, while it may block: never a device's audio thread.
  void waitFor(std::size_t frames);
  /// Continues from `frame`. Not while `read` runs.
  void seek(std::int64_t frame);
  /// Sets the stretch that repeats endlessly once it is reached; nothing for none. A `seek` has to
  /// follow.
  void setLoop(const std::optional<LoopRange>& loop);

 private:
  void decode();
  bool hasRoom() const;

  LoopingSource source_;
  const AudioFormat format_;
  const std::int64_t frames_;
  realtime::SpscRing<float> ring_;
  std::vector<float> block_;
  std::atomic<bool> ended_{false};

  std::mutex mutex_;
  std::condition_variable wakeDecoder_;
  std::condition_variable madeProgress_;
  bool stop_ = false;
  std::thread decoder_;
};

}  // namespace host

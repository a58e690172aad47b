#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "host/files/AtomicFile.h"
#include "host/files/AudioSource.h"
#include "host/messages/Message.h"
#include "host/playback/BlockRenderer.h"
#include "realtime/SpscRing.h"

namespace host {

/// Records what it hears to a 32-bit float WAV file (RF64 above 4 GB), writing on a thread of its
/// own.
class Recorder : public AudioTap {
 public:
  /// Takes ownership of the file. Throws `Failure` when it cannot be written.
  Recorder(std::unique_ptr<AtomicFile> file, AudioFormat format);
  /// Without `finish`, leaves no file behind.
  ~Recorder() override;

  void hear(const float* const* planes, std::uint32_t frames) noexcept override;
  /// What has gone wrong so far; empty if nothing has. Any thread but the audio thread.
  Message failure() const;
  /// Waits until a block of `frames` frames fits or writing has failed. For rendering faster than
  /// real time. Any thread but the audio thread.
  void waitForRoom(std::uint32_t frames);
  /// Writes the rest and puts the file in place. Throws `Failure` when anything was lost. Call it
  /// after the last `hear`.
  void finish();

 private:
  struct Close {
    void operator()(void* file) const;
  };

  void write();
  void writeReadable(std::unique_lock<std::mutex>& lock);
  void stop();

  std::unique_ptr<AtomicFile> target_;
  AudioFormat format_;
  realtime::SpscRing<float> ring_;
  std::vector<float> incoming_;
  std::vector<float> outgoing_;
  std::atomic<std::uint64_t> lostFrames_{0};
  std::unique_ptr<void, Close> file_;

  mutable std::mutex mutex_;
  std::condition_variable wakeWriter_;
  std::condition_variable madeRoom_;
  bool stop_ = false;
  Message error_;
  std::thread writer_;
};

}  // namespace host

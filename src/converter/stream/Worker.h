#pragma once

#include <atomic>
#include <memory>
#include <thread>

#include "converter/stream/CodecStatus.h"
#include "converter/transcoder/BlockTranscoder.h"
#include "realtime/Semaphore.h"
#include "realtime/SpscRing.h"

namespace converter {

/// The thread that runs a unit's codec, and the two queues between it and the audio thread.
class Worker {
 public:
  Worker(const UnitFormat& unit, std::size_t queueBlocks, OpenEncoder open = openEncoder);
  ~Worker() { stop(); }

  /// Main thread, while the audio thread does not use the queues. Starting makes everything empty.
  /// Throws `std::system_error` when there is no thread to be had; nothing is then made of the
  /// source, and nobody waits for it.
  void start();
  void stop();
  /// While stopped. Null for none.
  void setBitStreamSink(BitStreamSink* sink) { transcoder_->setBitStreamSink(sink); }

  /// Any thread: whether the worker goes before ordinary threads, which it takes up when it wakes.
  /// At first it does not.
  void setUrgent(bool urgent) { urgent_.store(urgent, std::memory_order_relaxed); }

  /// Audio thread writes, and calls `wake` before it counts on what it has pushed.
  realtime::SpscRing<SourceBlock>& source() { return source_; }
  /// Audio thread reads.
  realtime::SpscRing<AudioBlock>& encoded() { return encoded_; }
  void wake() { work_.release(); }

  /// Audio thread: waits until `ready`, which the worker's progress has to make true sooner or
  /// later. Without a worker it only looks.
  template <typename Ready>
  void waitUntil(Ready ready) {
    while (!ready() && thread_.joinable()) {
      waiting_.exchange(true, std::memory_order_acq_rel);
      wake();
      // Either this look sees the progress, or the worker has yet to see that somebody waits.
      if (!ready()) progress_.acquire();
      waiting_.exchange(false, std::memory_order_acq_rel);
    }
  }

  /// Any thread.
  const CodecStatus& codec() const { return codec_; }

 private:
  void run();
  void processWaiting();
  void takeUpUrgency();

  realtime::SpscRing<SourceBlock> source_;
  realtime::SpscRing<AudioBlock> encoded_;
  std::unique_ptr<BlockTranscoder> transcoder_;
  /// Takes the encoded block that finds its queue full, so that the codec goes on all the same.
  AudioBlock surplus_;
  realtime::Semaphore work_;
  realtime::Semaphore progress_;
  std::atomic<bool> waiting_{false};
  std::atomic<bool> stopping_{false};
  std::atomic<bool> urgent_{false};
  bool isUrgent_ = false;
  CodecStatus codec_;
  std::thread thread_;
};

}  // namespace converter

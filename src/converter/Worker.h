#pragma once

#include <atomic>
#include <bit>
#include <thread>

#include "converter/Semaphore.h"
#include "converter/SourceBlock.h"
#include "converter/SpscQueue.h"
#include "converter/Transcoder.h"

namespace converter {

/// The thread that runs a unit's codec, and the two queues between it and the audio thread.
class Worker {
 public:
  Worker(const UnitFormat& unit, std::size_t queueBlocks);
  ~Worker() { stop(); }

  /// Main thread, while the audio thread does not use the queues. Starting makes everything empty.
  void start();
  void stop();
  /// While stopped. Null for none.
  void setBitStreamSink(BitStreamSink* sink) { transcoder_.setBitStreamSink(sink); }

  /// Audio thread writes, `wake` after every push.
  SpscQueue<SourceBlock>& source() { return source_; }
  /// Audio thread reads.
  SpscQueue<AudioBlock>& encoded() { return encoded_; }
  void wake() { work_.release(); }

  /// Audio thread: waits until `ready`, which the worker's progress has to make true sooner or
  /// later.
  template <typename Ready>
  void waitUntil(Ready ready) {
    while (!ready()) {
      waiting_.exchange(true, std::memory_order_acq_rel);
      // Either this look sees the progress, or the worker has yet to see that somebody waits.
      if (!ready()) progress_.acquire();
      waiting_.exchange(false, std::memory_order_acq_rel);
    }
  }

  /// Any thread.
  BitRate bitRate() const {
    return std::bit_cast<BitRate>(bitRate_.load(std::memory_order_relaxed));
  }

 private:
  void run();
  void processWaiting();

  SpscQueue<SourceBlock> source_;
  SpscQueue<AudioBlock> encoded_;
  Transcoder transcoder_;
  /// Takes the encoded block that finds its queue full, so that the codec goes on all the same.
  AudioBlock surplus_;
  Semaphore work_;
  Semaphore progress_;
  std::atomic<bool> waiting_{false};
  std::atomic<bool> stopping_{false};
  /// A `BitRate`, whose own alignment is too small for one atomic word.
  std::atomic<UInt64> bitRate_{0};
  std::thread thread_;
};
static_assert(sizeof(BitRate) == sizeof(UInt64));

}  // namespace converter

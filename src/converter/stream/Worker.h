#pragma once

#include <atomic>
#include <memory>
#include <thread>

#include "converter/stream/CodecStatus.h"
#include "converter/stream/Patience.h"
#include "converter/transcoder/BlockTranscoder.h"
#include "realtime/Semaphore.h"
#include "realtime/SpscRing.h"

namespace converter {

/// Runs a unit's codec on a thread of its own, with two queues between it and the audio thread.
class Worker {
 public:
  Worker(const UnitFormat& unit, std::size_t queueBlocks, OpenEncoder open = openEncoder);
  ~Worker() { stop(); }

  /// The unit's thread, while the audio thread does not use the queues. Starting empties it all.
  /// Throws `std::system_error` when no thread can be started; the source is then never encoded,
  /// and `waitUntil` does not wait.
  void start();
  void stop();
  /// Null for none. Only while the worker is stopped.
  void setBitStreamSink(BitStreamSink* sink) { transcoder_->setBitStreamSink(sink); }

  /// Whether the worker runs above ordinary threads, from its next wake-up on; at first it does
  /// not. Any thread.
  void setUrgent(bool urgent) { urgent_.store(urgent, std::memory_order_relaxed); }

  /// Audio thread writes, and calls `wake` when it needs what it has pushed to be processed.
  realtime::SpscRing<SourceBlock>& source() { return source_; }
  /// Audio thread reads.
  realtime::SpscRing<AudioBlock>& encoded() { return encoded_; }
  void wake() { work_.release(); }

  /// Waits until `ready()`, which the worker's progress must make true in the end, or until the
  /// caller's patience ends. Without a running worker it does not wait. Audio thread, or another
  /// while that does not render.
  template <typename Ready>
  void waitUntil(Ready ready, Patience patience) {
    // A token left over from a wait that timed out costs one more turn.
    while (!ready() && !patience.isNone() && thread_.joinable()) {
      waiting_.exchange(patience.isEndless() ? Waiting::forMost : Waiting::forNext,
                        std::memory_order_acq_rel);
      wake();
      // Either this check sees the progress, or the worker still has to see `waiting_`.
      bool isInTime = true;
      if (!ready()) isInTime = awaitProgress(patience);
      waiting_.exchange(Waiting::no, std::memory_order_acq_rel);
      if (!isInTime) return;
    }
  }

  /// Any thread.
  const CodecStatus& codec() const { return codec_; }

 private:
  /// What a waiting thread is woken for. To be woken for each block costs several percent of the
  /// codec's time, which only counts where there is time for it.
  enum class Waiting : std::uint8_t { no, forNext, forMost };

  void run();
  void processQueue();
  bool awaitProgress(Patience patience);
  void announceProgress();
  void updatePriority();

  realtime::SpscRing<SourceBlock> source_;
  realtime::SpscRing<AudioBlock> encoded_;
  std::unique_ptr<BlockTranscoder> transcoder_;
  /// Receives the encoded block when its queue is full, so that the codec can go on.
  AudioBlock surplus_;
  realtime::Semaphore work_;
  realtime::Semaphore progress_;
  std::atomic<Waiting> waiting_{Waiting::no};
  std::atomic<bool> stopping_{false};
  std::atomic<bool> urgent_{false};
  bool isUrgent_ = false;
  CodecStatus codec_;
  std::thread thread_;
};

}  // namespace converter

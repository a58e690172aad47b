#include "converter/stream/Worker.h"

#include <pthread.h>

#include <utility>

#include "realtime/ThreadPriority.h"

namespace converter {
namespace {

/// Whoever waits off line is woken when no more than this many source blocks are left.
constexpr std::size_t kLeftWhenWaking = 1;

}  // namespace

Worker::Worker(const UnitFormat& unit, std::size_t queueBlocks, OpenEncoder open)
    : source_(queueBlocks),
      encoded_(queueBlocks),
      transcoder_(makeTranscoder(unit, std::move(open))) {}

void Worker::start() {
  source_.clear();
  encoded_.clear();
  transcoder_->clear();
  codec_.publish(transcoder_->report());
  isUrgent_ = false;
  stopping_ = false;
  thread_ = std::thread([this] { run(); });
}

void Worker::stop() {
  if (!thread_.joinable()) return;
  stopping_ = true;
  work_.release();
  thread_.join();
}

void Worker::run() {
  pthread_setname_np(pthread_self(), "aac-converter");
  while (!stopping_) {
    updatePriority();
    processQueue();
    work_.acquire();
  }
}

void Worker::updatePriority() {
  const bool urgent = urgent_.load(std::memory_order_relaxed);
  if (urgent == isUrgent_) return;
  isUrgent_ = urgent;
  if (urgent) {
    realtime::raiseThreadPriority();
  } else {
    realtime::dropThreadPriority();
  }
}

void Worker::processQueue() {
  while (const SourceBlock* block = source_.front()) {
    if (stopping_) return;
    AudioBlock* encoded = encoded_.claim();
    transcoder_->process(*block, encoded != nullptr ? *encoded : surplus_);
    if (encoded != nullptr) encoded_.push();
    codec_.publish(transcoder_->report());
    source_.pop();
    announceProgress();
  }
}

void Worker::announceProgress() {
  const auto waiting = waiting_.load(std::memory_order_acquire);
  if (waiting == Waiting::no) return;
  if (waiting == Waiting::forMost && source_.readable() > kLeftWhenWaking) return;
  if (waiting_.exchange(Waiting::no, std::memory_order_acq_rel) != Waiting::no) progress_.release();
}

/// Returns whether there was any in time.
bool Worker::awaitProgress(Patience patience) {
  if (!patience.isEndless()) return progress_.acquireUntil(patience.deadline());
  progress_.acquire();
  return true;
}

}  // namespace converter

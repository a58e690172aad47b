#include "converter/Worker.h"

#include <pthread.h>

namespace converter {

Worker::Worker(const UnitFormat& unit, std::size_t queueBlocks)
    : source_(queueBlocks), encoded_(queueBlocks), transcoder_(unit) {}

void Worker::start() {
  source_.clear();
  encoded_.clear();
  transcoder_.clear();
  bitRate_ = std::bit_cast<UInt64>(BitRate{0, 0});
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
    processWaiting();
    work_.acquire();
  }
}

void Worker::processWaiting() {
  while (const SourceBlock* block = source_.front()) {
    if (stopping_) return;
    AudioBlock* encoded = encoded_.claim();
    transcoder_.process(*block, encoded != nullptr ? *encoded : surplus_);
    if (encoded != nullptr) encoded_.push();
    bitRate_.store(std::bit_cast<UInt64>(transcoder_.bitRate()), std::memory_order_relaxed);
    source_.pop();
    if (waiting_.exchange(false, std::memory_order_acq_rel)) progress_.release();
  }
}

}  // namespace converter

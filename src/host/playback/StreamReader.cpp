#include "host/playback/StreamReader.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kFramesPerRead = 4096;
constexpr std::size_t kSecondsAhead = 2;
/// The audio thread never wakes the decoder when there is room, so the decoder looks this often.
constexpr auto kDecoderLooksEvery = std::chrono::milliseconds(20);

}  // namespace

StreamReader::StreamReader(std::unique_ptr<AudioSource> source)
    : source_(std::move(source)),
      format_(source_.format()),
      frames_(source_.frames()),
      ring_((kSecondsAhead * format_.sampleRate + kFramesPerRead) * format_.channels),
      block_(kFramesPerRead * format_.channels),
      decoder_([this] { decode(); }) {}

StreamReader::~StreamReader() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
  }
  wakeDecoder_.notify_all();
  decoder_.join();
}

bool StreamReader::hasRoom() const {
  return ring_.writable() >= block_.size();
}

void StreamReader::decode() {
  std::unique_lock lock(mutex_);
  while (!stop_) {
    if (ended_ || !hasRoom()) {
      if (ended_) {
        wakeDecoder_.wait(lock);
      } else {
        wakeDecoder_.wait_for(lock, kDecoderLooksEvery);
      }
      continue;
    }
    // The mutex guards the source, so a seek waits for at most one block.
    const auto got = source_.read(block_.data(), kFramesPerRead);
    ring_.write(block_.data(), got * format_.channels);
    if (got < kFramesPerRead) ended_.store(true, std::memory_order_release);
    madeProgress_.notify_all();
    // Let a waiting seek have its turn.
    lock.unlock();
    lock.lock();
  }
}

std::size_t StreamReader::read(float* interleaved, std::size_t frames) noexcept {
  const auto count = std::min(frames, readable());
  ring_.read(interleaved, count * format_.channels);
  return count;
}

void StreamReader::waitFor(std::size_t frames) {
  std::unique_lock lock(mutex_);
  wakeDecoder_.notify_all();
  madeProgress_.wait(lock, [&] {
    return ended_.load(std::memory_order_relaxed) || readable() >= frames || !hasRoom();
  });
}

void StreamReader::seek(std::int64_t frame) {
  {
    const std::lock_guard lock(mutex_);
    ring_.clear();
    source_.seek(frame);
    ended_.store(false, std::memory_order_release);
  }
  wakeDecoder_.notify_all();
}

void StreamReader::setLoop(const std::optional<LoopRange>& loop) {
  const std::lock_guard lock(mutex_);
  source_.setLoop(loop);
}

}  // namespace host

#include "host/playback/Recorder.h"

#include <sndfile.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "host/messages/Failure.h"

namespace host {
namespace {

constexpr std::size_t kSecondsOfRoom = 4;
constexpr std::size_t kFramesPerWrite = 4096;
/// The audio thread never wakes the writer, so the writer looks this often.
constexpr auto kWriterLooksEvery = std::chrono::milliseconds(20);

SNDFILE* handle(void* file) {
  return static_cast<SNDFILE*>(file);
}

}  // namespace

void Recorder::Close::operator()(void* file) const {
  sf_close(handle(file));
}

Recorder::Recorder(std::unique_ptr<AtomicFile> file, AudioFormat format)
    : target_(std::move(file)),
      format_(format),
      ring_(kSecondsOfRoom * format.sampleRate * format.channels),
      incoming_(kFramesPerWrite * format.channels),
      outgoing_(kFramesPerWrite * format.channels) {
  SF_INFO info{};
  info.samplerate = static_cast<int>(format.sampleRate);
  info.channels = static_cast<int>(format.channels);
  info.format = SF_FORMAT_RF64 | SF_FORMAT_FLOAT;
  file_.reset(sf_open(target_->temporaryPath().c_str(), SFM_WRITE, &info));
  if (!file_) {
    throw Failure(Message::words("cannot write '%1': %2"),
                  {target_->path().string(), sf_strerror(nullptr)});
  }
  sf_command(handle(file_.get()), SFC_RF64_AUTO_DOWNGRADE, nullptr, SF_TRUE);
  writer_ = std::thread([this] { write(); });
}

Recorder::~Recorder() {
  stop();
  // Close it before the temporary file is removed.
  file_.reset();
}

void Recorder::hear(const float* const* planes, std::uint32_t frames) noexcept {
  const auto channels = format_.channels;
  for (std::uint32_t start = 0; start < frames;) {
    const auto count = std::min<std::uint32_t>(frames - start, kFramesPerWrite);
    if (ring_.writable() < std::size_t{count} * channels) {
      lostFrames_ += frames - start;
      return;
    }
    for (std::uint32_t channel = 0; channel < channels; ++channel) {
      for (std::uint32_t i = 0; i < count; ++i) {
        incoming_[std::size_t{i} * channels + channel] = planes[channel][start + i];
      }
    }
    ring_.write(incoming_.data(), std::size_t{count} * channels);
    start += count;
  }
}

Message Recorder::failure() const {
  const std::lock_guard lock(mutex_);
  return error_;
}

void Recorder::waitForRoom(std::uint32_t frames) {
  std::unique_lock lock(mutex_);
  madeRoom_.wait(lock, [&] {
    const bool fits = ring_.writable() >= std::size_t{frames} * format_.channels;
    if (!fits) wakeWriter_.notify_all();
    return fits || !error_.empty();
  });
}

void Recorder::writeReadable(std::unique_lock<std::mutex>& lock) {
  while (const auto readable = ring_.readable()) {
    const auto samples = std::min(readable, outgoing_.size());
    ring_.read(outgoing_.data(), samples);
    lock.unlock();
    const auto written =
        sf_write_float(handle(file_.get()), outgoing_.data(), static_cast<sf_count_t>(samples));
    const bool failed = written != static_cast<sf_count_t>(samples);
    const std::string error = failed ? sf_strerror(handle(file_.get())) : "";
    lock.lock();
    if (failed && error_.empty()) {
      error_ = error.empty() ? Message::words("the disk is full") : Message(error);
    }
    madeRoom_.notify_all();
  }
}

void Recorder::write() {
  std::unique_lock lock(mutex_);
  while (!stop_) {
    writeReadable(lock);
    if (!stop_) wakeWriter_.wait_for(lock, kWriterLooksEvery);
  }
  writeReadable(lock);
}

void Recorder::stop() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
  }
  wakeWriter_.notify_all();
  if (writer_.joinable()) writer_.join();
}

void Recorder::finish() {
  stop();
  const auto path = target_->path().string();
  const bool closed = sf_close(handle(file_.release())) == 0;
  if (!error_.empty()) {
    throw Failure(Message::words("cannot write '%1': %2; nothing was kept"), {path, error_});
  }
  if (!closed) {
    throw Failure(Message::words("cannot write '%1': the disk may be full; nothing was kept"),
                  {path});
  }
  if (lostFrames_ > 0) {
    throw Failure(Message::words("cannot write '%1': the disk was too slow for %2 frames; "
                                 "record to a faster disk"),
                  {path, lostFrames_.load()});
  }
  target_->commit();
}

}  // namespace host

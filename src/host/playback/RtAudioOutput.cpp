#include <rtaudio/RtAudio.h>
#include <sched.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <mutex>
#include <stdexcept>

#include "host/messages/Failure.h"
#include "host/playback/Devices.h"
#include "host/playback/RtAudioVersions.h"
#include "host/playback/SoundSystems.h"

namespace host {
namespace {

constexpr unsigned preferredBlock = 512;
/// A device that has disappeared keeps warning; one that merely stumbles warns less often.
constexpr int manyWarnings = 4;
constexpr auto longestPause = std::chrono::seconds(3);

class RtAudioOutput : public Output {
 public:
  RtAudioOutput(const Device& device, AudioFormat format, BlockRenderer& renderer);
  ~RtAudioOutput() override;

  std::string name() const override { return name_; }
  bool isSilent() const override { return false; }
  std::uint32_t sampleRate() const override { return format_.sampleRate; }
  std::uint32_t latency() const override { return latency_; }
  Message failure() override;

  void hearOfError(bool warns, const std::string& text);

 private:
  void start(const Device& device);
  int render(float* samples, unsigned frames) noexcept;

  const std::string name_;
  const AudioFormat format_;
  BlockRenderer& renderer_;
  RtAudio audio_;
  unsigned deviceChannels_;
  std::uint32_t latency_ = 0;

  std::atomic<std::uint64_t> blocks_{0};
  std::atomic<int> warnings_{0};
  std::atomic<bool> failed_{false};
  std::mutex mutex_;
  std::string error_;
  std::uint64_t blocksSeen_ = 0;
  std::chrono::steady_clock::time_point lastBlockSeen_;
};

/// RtAudio's error callback does not say which stream it is for, and the program opens only one at
/// a time.
std::atomic<RtAudioOutput*> openOutput{nullptr};

Failure cannotPlay(const Device& device, const Message& why) {
  return Failure(Message::words("cannot play to '%1': %2; choose another device"),
                 {device.name, why});
}

RtAudioOutput::RtAudioOutput(const Device& device, AudioFormat format, BlockRenderer& renderer)
    : name_(device.name),
      format_(format),
      renderer_(renderer),
      audio_(static_cast<RtAudio::Api>(device.system)),
      deviceChannels_(std::min(device.channels, 2U)),
      lastBlockSeen_(std::chrono::steady_clock::now()) {
  if (deviceChannels_ < format.channels) throw cannotPlay(device, Message::words("it is mono"));
  audio_.showWarnings(false);
  openOutput = this;
  try {
    start(device);
  } catch (const std::runtime_error& error) {
    openOutput = nullptr;
    throw cannotPlay(device, Message(error.what()));
  }
}

void RtAudioOutput::start(const Device& device) {
  RtAudio::StreamParameters parameters;
  parameters.deviceId = rtaudio::numberToOpen(audio_, device.index, [&](const auto& info) {
    return device.name == RtAudio::getApiDisplayName(audio_.getCurrentApi()) + ": " + info.name;
  });
  parameters.nChannels = deviceChannels_;
  RtAudio::StreamOptions options;
  options.flags = RTAUDIO_NONINTERLEAVED | RTAUDIO_SCHEDULE_REALTIME;
  // One above the codec's worker, which has the lowest: on a single core it would keep the device
  // waiting.
  options.priority = sched_get_priority_min(SCHED_RR) + 1;
  options.streamName = "aac-audition";
  auto frames = preferredBlock;
  rtaudio::openStream(
      audio_,
      [](auto type, const std::string& text) {
        auto* const output = openOutput.load();
        if (output != nullptr) output->hearOfError(rtaudio::isWarning(type), text);
      },
      &parameters, nullptr, RTAUDIO_FLOAT32, format_.sampleRate, &frames,
      [](void* output, void* /*input*/, unsigned count, double /*time*/,
         RtAudioStreamStatus /*status*/, void* self) {
        return static_cast<RtAudioOutput*>(self)->render(static_cast<float*>(output), count);
      },
      this, &options);
  rtaudio::startStream(audio_);
  latency_ = static_cast<std::uint32_t>(std::max(audio_.getStreamLatency(), 0L));
}

RtAudioOutput::~RtAudioOutput() {
  const std::lock_guard lock(soundSystemsMutex());
  try {
    if (audio_.isStreamOpen()) audio_.closeStream();
  } catch (const std::runtime_error&) {
    // The device has gone already.
    failed_ = true;
  }
  openOutput = nullptr;
}

int RtAudioOutput::render(float* samples, unsigned frames) noexcept {
  const std::array<float*, 2> planes = {samples, samples + (deviceChannels_ > 1 ? frames : 0)};
  if (failed_.load(std::memory_order_relaxed)) {
    // A device that has disappeared may keep asking for blocks; do not play the file to it.
    std::fill_n(samples, std::size_t{frames} * deviceChannels_, 0.0F);
    return 0;
  }
  renderer_.renderBlock(planes.data(), frames);
  if (format_.channels == 1 && deviceChannels_ == 2) std::copy_n(planes[0], frames, planes[1]);
  blocks_.fetch_add(1, std::memory_order_relaxed);
  return 0;
}

void RtAudioOutput::hearOfError(bool warns, const std::string& text) {
  if (warns && ++warnings_ < manyWarnings) return;
  const std::lock_guard lock(mutex_);
  if (error_.empty()) error_ = text;
  failed_ = true;
}

Message RtAudioOutput::failure() {
  const auto now = std::chrono::steady_clock::now();
  const auto blocks = blocks_.load(std::memory_order_relaxed);
  if (blocks != blocksSeen_) {
    blocksSeen_ = blocks;
    lastBlockSeen_ = now;
  }
  if (!failed_ && now - lastBlockSeen_ < longestPause) return {};
  const std::lock_guard lock(mutex_);
  return error_.empty() ? Message::words("it has stopped") : Message(error_);
}

}  // namespace

std::unique_ptr<Output> openDevice(const Device& device, AudioFormat format,
                                   BlockRenderer& renderer) {
  silenceAlsa();
  const std::lock_guard lock(soundSystemsMutex());
  return std::make_unique<RtAudioOutput>(device, format, renderer);
}

}  // namespace host

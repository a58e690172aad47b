#pragma once

#include <atomic>
#include <thread>

#include "host/files/AudioSource.h"
#include "host/playback/BlockRenderer.h"
#include "host/playback/Output.h"

namespace host {

/// Renders in real time on a thread of its own and discards the audio.
class SilentClock : public Output {
 public:
  SilentClock(AudioFormat format, BlockRenderer& renderer);
  ~SilentClock() override;

  std::string name() const override { return "none"; }
  bool isSilent() const override { return true; }
  std::uint32_t sampleRate() const override { return format_.sampleRate; }
  std::uint32_t latency() const override { return 0; }
  Message failure() override { return {}; }

 private:
  void run();

  AudioFormat format_;
  BlockRenderer& renderer_;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

}  // namespace host

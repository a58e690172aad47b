#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Sound.h"
#include "host/messages/Failure.h"
#include "host/playback/Devices.h"

/// Devices that play when a test tells them to. Must outlive what plays to them.
class FakeDevices {
 public:
  static host::Device device(const std::string& name, std::vector<unsigned> sampleRates,
                             unsigned preferredRate = 0) {
    host::Device device;
    device.name = name;
    device.sampleRates = std::move(sampleRates);
    device.preferredRate = preferredRate;
    device.channels = 2;
    return device;
  }

  /// Opens devices, except those whose names are those of broken ones.
  host::OpenDevice open() {
    return [this](const host::Device& device, host::AudioFormat format,
                  host::BlockRenderer& renderer) -> std::unique_ptr<host::Output> {
      if (device.name == "Broken") throw host::Failure(host::Message("'Broken' is broken"));
      format_ = format;
      renderer_ = &renderer;
      return std::make_unique<Opened>(device.name, format);
    };
  }

  /// The format of the device opened last.
  host::AudioFormat format() const { return format_; }
  /// The next audio that it plays.
  Sound play(std::size_t frames, std::uint32_t block = 480) {
    auto sound = silence(format_.sampleRate, format_.channels, frames);
    for (std::size_t at = 0; at < frames; at += block) {
      float* planes[2] = {};
      for (std::size_t channel = 0; channel < format_.channels; ++channel) {
        planes[channel] = sound.planes[channel].data() + at;
      }
      renderer_->renderBlock(planes,
                             static_cast<std::uint32_t>(std::min<std::size_t>(block, frames - at)));
    }
    return sound;
  }

  /// The device's latency, in frames at its own rate.
  static constexpr std::uint32_t kLatency = 960;

 private:
  class Opened : public host::Output {
   public:
    Opened(std::string name, host::AudioFormat format) : name_(std::move(name)), format_(format) {}
    std::string name() const override { return name_; }
    bool isSilent() const override { return false; }
    std::uint32_t sampleRate() const override { return format_.sampleRate; }
    std::uint32_t latency() const override { return FakeDevices::kLatency; }
    host::Message failure() override { return {}; }

   private:
    const std::string name_;
    const host::AudioFormat format_;
  };

  host::AudioFormat format_;
  host::BlockRenderer* renderer_ = nullptr;
};

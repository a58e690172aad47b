#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/playback/BlockRenderer.h"
#include "host/playback/Output.h"

namespace host {

/// A sound device that plays.
struct Device {
  /// "PulseAudio: Built-in Audio Analog Stereo".
  std::string name;
  /// RtAudio's number of the sound system, and of the device in it.
  int system = 0;
  unsigned index = 0;
  bool isDefault = false;
  /// Hz; none where the device does not tell.
  std::vector<unsigned> sampleRates;
  unsigned channels = 0;
  /// Of its rates, the one that it runs at now or likes best; 0 where it does not tell.
  unsigned preferredRate = 0;
};

/// Every device of JACK, PulseAudio and ALSA, in this order. Takes a moment. Main thread.
std::vector<Device> outputDevices();

/// The device with that name, or else the first that has it as a part of its name; case does not
/// matter. Nothing when there is none.
std::optional<Device> deviceNamed(const std::vector<Device>& devices, std::string_view name);

/// The same; throws `Failure` when there is none.
Device requiredDevice(const std::vector<Device>& devices, std::string_view name);

/// Whether the device plays this sample rate as it is, as far as it tells.
bool doesRate(const Device& device, std::uint32_t sampleRate);

/// The rate at which the device plays audio of `sampleRate`: that, if it does it; otherwise one
/// that keeps the whole band, the preferred one or else the lowest; otherwise its highest.
std::uint32_t playingRate(const Device& device, std::uint32_t sampleRate);

/// The order in which to try devices for audio of `sampleRate`: the one called `chosen` first, if
/// any, then those that play it as it is; each system's default before its others.
std::vector<Device> inOrderOfPreference(std::vector<Device> devices, std::uint32_t sampleRate,
                                        std::string_view chosen);

/// Opens and starts a device at the format's sample rate. Throws `Failure`.
using OpenDevice = std::function<std::unique_ptr<Output>(const Device& device, AudioFormat format,
                                                         BlockRenderer& renderer)>;

/// The one that does.
std::unique_ptr<Output> openDevice(const Device& device, AudioFormat format,
                                   BlockRenderer& renderer);

}  // namespace host

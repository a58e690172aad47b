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

/// A sound device for output.
struct Device {
  /// "PulseAudio: Built-in Audio Analog Stereo".
  std::string name;
  /// RtAudio's numbers of the sound system and of the device in it.
  int system = 0;
  unsigned index = 0;
  bool isDefault = false;
  /// Hz; empty if unknown.
  std::vector<unsigned> sampleRates;
  unsigned channels = 0;
  /// The rate that it runs at now or prefers, Hz; 0 if unknown.
  unsigned preferredRate = 0;
};

/// Every device of JACK, PulseAudio and ALSA, in this order. Takes a moment, and waits while
/// another thread looks or a device is being opened or closed. Any thread.
std::vector<Device> outputDevices();

/// The device with that name, or else the first whose name contains it, ignoring case. Nothing when
/// there is none.
std::optional<Device> deviceNamed(const std::vector<Device>& devices, std::string_view name);

/// The same; throws `Failure` when there is none.
Device requiredDevice(const std::vector<Device>& devices, std::string_view name);

/// Whether the device supports this sample rate; true if it does not tell which it supports.
bool supportsRate(const Device& device, std::uint32_t sampleRate);

/// The rate at which the device plays audio of `sampleRate`: the same if it supports it. Otherwise
/// a higher one, which keeps the whole band: the preferred rate or else the lowest such. Otherwise
/// its highest rate.
std::uint32_t playingRate(const Device& device, std::uint32_t sampleRate);

/// The devices in the order in which to try them for audio of `sampleRate`: first the one named
/// `chosen`, then those that support the rate, then the others; default devices first in each
/// group.
std::vector<Device> inOrderOfPreference(std::vector<Device> devices, std::uint32_t sampleRate,
                                        std::string_view chosen);

/// Opens and starts a device at the format's sample rate. Throws `Failure`.
using OpenDevice = std::function<std::unique_ptr<Output>(const Device& device, AudioFormat format,
                                                         BlockRenderer& renderer)>;

/// The default `OpenDevice`; uses RtAudio. Like the destructor of what it gives, it waits while
/// devices are looked for. Main thread.
std::unique_ptr<Output> openDevice(const Device& device, AudioFormat format,
                                   BlockRenderer& renderer);

}  // namespace host

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/AudioSource.h"
#include "host/BlockRenderer.h"
#include "host/Output.h"

namespace host {

/// A sound device that plays.
struct Device {
  /// "PulseAudio: Built-in Audio Analog Stereo".
  std::string name;
  /// RtAudio's number of the sound system, and of the device in it.
  int system = 0;
  unsigned index = 0;
  bool isDefault = false;
  std::vector<unsigned> sampleRates;
  unsigned channels = 0;
};

/// Every device of JACK, PulseAudio and ALSA, in this order. Takes a moment. Main thread.
std::vector<Device> outputDevices();

/// The device with that name, or else the first that has it as a part of its name; case does not
/// matter. Nothing when there is none.
std::optional<Device> deviceNamed(const std::vector<Device>& devices, std::string_view name);

/// The same; throws `Failure` when there is none.
Device requiredDevice(const std::vector<Device>& devices, std::string_view name);

/// The order in which to try devices when the user has not chosen one: each system's default first.
std::vector<Device> inOrderOfPreference(std::vector<Device> devices);

/// Opens and starts the device. Throws `Failure`.
std::unique_ptr<Output> openDevice(const Device& device, AudioFormat format,
                                   BlockRenderer& renderer);

}  // namespace host

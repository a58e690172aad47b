#include "host/playback/Devices.h"

#include <rtaudio/RtAudio.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <mutex>
#include <stdexcept>
#include <utility>

#include "host/messages/Failure.h"
#include "host/messages/QuietCall.h"
#include "host/playback/RtAudioVersions.h"
#include "host/playback/SoundSystems.h"

namespace host {
namespace {

constexpr std::array<RtAudio::Api, 3> systems = {RtAudio::UNIX_JACK, RtAudio::LINUX_PULSE,
                                                 RtAudio::LINUX_ALSA};

std::string lower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return result;
}

void appendDevices(RtAudio::Api system, std::vector<Device>& devices) {
  RtAudio audio(system);
  // A system that this build lacks makes another one step in.
  if (audio.getCurrentApi() != system) return;
  audio.showWarnings(false);
  for (const auto& [number, info] : rtaudio::playingDevices(audio)) {
    devices.push_back({RtAudio::getApiDisplayName(system) + ": " + info.name,
                       static_cast<int>(system), number, info.isDefaultOutput, info.sampleRates,
                       info.outputChannels, info.preferredSampleRate});
  }
}

}  // namespace

std::vector<Device> outputDevices() {
  const std::lock_guard lock(soundSystemsMutex());
  std::vector<Device> devices;
  // Everything that looking opens is closed again.
  callQuietly([&] {
    for (const auto system : systems) {
      try {
        appendDevices(system, devices);
      } catch (const std::runtime_error&) {
        // A system that does not answer has no devices.
        continue;
      }
    }
  });
  return devices;
}

std::optional<Device> deviceNamed(const std::vector<Device>& devices, std::string_view name) {
  const auto wanted = lower(name);
  const auto find = [&](auto matches) {
    return std::find_if(devices.begin(), devices.end(),
                        [&](const Device& device) { return matches(lower(device.name)); });
  };
  auto found = find([&](const std::string& each) { return each == wanted; });
  if (found == devices.end()) {
    found = find([&](const std::string& each) { return each.find(wanted) != std::string::npos; });
  }
  if (found == devices.end()) return std::nullopt;
  return *found;
}

Device requiredDevice(const std::vector<Device>& devices, std::string_view name) {
  auto device = deviceNamed(devices, name);
  if (device) return *std::move(device);
  std::string names = "none";
  for (const auto& each : devices) names += ", '" + each.name + "'";
  throw Failure(Message::words("there is no device '%1'; give one of: %2"),
                {std::string(name), names});
}

bool supportsRate(const Device& device, std::uint32_t sampleRate) {
  const auto& rates = device.sampleRates;
  return rates.empty() || std::find(rates.begin(), rates.end(), sampleRate) != rates.end();
}

std::uint32_t playingRate(const Device& device, std::uint32_t sampleRate) {
  if (supportsRate(device, sampleRate)) return sampleRate;
  if (device.preferredRate >= sampleRate) return device.preferredRate;
  std::uint32_t nearest = 0;
  for (const auto rate : device.sampleRates) {
    const bool isLowest = rate >= sampleRate && (nearest < sampleRate || rate < nearest);
    const bool isHighest = rate < sampleRate && rate > nearest;
    if (isLowest || isHighest) nearest = rate;
  }
  return nearest;
}

std::vector<Device> inOrderOfPreference(std::vector<Device> devices, std::uint32_t sampleRate,
                                        std::string_view chosen) {
  const auto place = [=](const Device& device) {
    if (!chosen.empty() && device.name == chosen) return 0;
    return (supportsRate(device, sampleRate) ? 1 : 3) + (device.isDefault ? 0 : 1);
  };
  std::stable_sort(devices.begin(), devices.end(), [&](const Device& one, const Device& other) {
    return place(one) < place(other);
  });
  return devices;
}

}  // namespace host

#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// What RtAudio 5 and RtAudio 6 do differently. RtAudio 5 throws its errors and numbers devices by
/// their place; RtAudio 6 returns its errors and gives devices identifiers, which hold for one
/// object only. `Audio` is `RtAudio` of either version, or what stands for it in a test.
namespace host::rtaudio {

/// Whether an error of this type leaves everything as it was.
template <typename Type>
constexpr bool isWarning(Type type) {
  if constexpr (requires { Type::RTAUDIO_WARNING; }) {
    return type == Type::RTAUDIO_NO_ERROR || type == Type::RTAUDIO_WARNING;
  } else {
    return type == Type::WARNING || type == Type::DEBUG_WARNING;
  }
}

/// What `getDeviceInfo` takes for each device.
template <typename Audio>
std::vector<unsigned> deviceNumbers(Audio& audio) {
  if constexpr (requires { audio.getDeviceIds(); }) {
    return audio.getDeviceIds();
  } else {
    std::vector<unsigned> numbers(audio.getDeviceCount());
    for (unsigned place = 0; place < numbers.size(); ++place) numbers[place] = place;
    return numbers;
  }
}

/// Whether the device answered. RtAudio 6 lists no other.
template <typename Info>
bool hasAnswered(const Info& info) {
  if constexpr (requires { info.probed; }) {
    return info.probed;
  } else {
    return true;
  }
}

/// The numbers and descriptions of the devices that play. May throw `std::runtime_error`.
template <typename Audio>
auto playingDevices(Audio& audio) {
  std::vector<std::pair<unsigned, decltype(audio.getDeviceInfo(0))>> devices;
  for (const auto number : deviceNumbers(audio)) {
    auto info = audio.getDeviceInfo(number);
    if (hasAnswered(info) && info.outputChannels > 0) devices.emplace_back(number, std::move(info));
  }
  return devices;
}

/// By which number `audio` opens a device that another object listed under `number`. `isIt` tells
/// the device by its description. Where it is gone, a number that RtAudio refuses.
template <typename Audio, typename IsIt>
unsigned numberToOpen(Audio& audio, unsigned number, IsIt isIt) {
  if constexpr (requires { audio.getDeviceIds(); }) {
    const auto numbers = audio.getDeviceIds();
    const auto isUnder = [&](unsigned each) { return isIt(audio.getDeviceInfo(each)); };
    // Of two devices with one name, the one in the same place.
    const bool isKnown = std::find(numbers.begin(), numbers.end(), number) != numbers.end();
    if (isKnown && isUnder(number)) return number;
    const auto found = std::find_if(numbers.begin(), numbers.end(), isUnder);
    return found == numbers.end() ? 0 : *found;
  } else {
    return number;
  }
}

/// Throws `std::runtime_error` with RtAudio's text if the call returned an error.
template <typename Audio, typename Type>
void throwIfError(Audio& audio, Type result) {
  if (!isWarning(result)) throw std::runtime_error(audio.getErrorText());
}

/// Opens a stream with `openStream`'s arguments. `tell(type, text)` then hears of errors; it is a
/// lambda that captures nothing and takes either version's type. Throws `std::runtime_error`.
template <typename Audio, typename Tell, typename... Arguments>
void openStream(Audio& audio, Tell tell, Arguments... arguments) {
  if constexpr (requires { audio.setErrorCallback(tell); }) {
    audio.setErrorCallback(tell);
    throwIfError(audio, audio.openStream(arguments...));
  } else {
    audio.openStream(arguments..., tell);
  }
}

/// Starts the open stream. Throws `std::runtime_error`.
template <typename Audio>
void startStream(Audio& audio) {
  if constexpr (requires { isWarning(audio.startStream()); }) {
    throwIfError(audio, audio.startStream());
  } else {
    audio.startStream();
  }
}

}  // namespace host::rtaudio

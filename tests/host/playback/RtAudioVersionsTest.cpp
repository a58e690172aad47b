#include <gmock/gmock.h>

#include <functional>

#include "host/playback/RtAudioVersions.h"

using testing::ElementsAre;
using testing::Pair;

namespace {

/// RtAudio 5 as far as the program speaks to it: places for devices, exceptions, a callback with
/// the stream.
struct Audio5 {
  enum ErrorType { WARNING, DEBUG_WARNING, UNSPECIFIED, INVALID_USE };
  using ErrorCallback = void (*)(ErrorType type, const std::string& text);
  struct DeviceInfo {
    bool probed = true;
    std::string name;
    unsigned outputChannels = 2;
  };

  unsigned getDeviceCount() const { return static_cast<unsigned>(devices.size()); }
  DeviceInfo getDeviceInfo(unsigned place) const { return devices.at(place); }
  void openStream(unsigned device, ErrorCallback callback) {
    if (device >= devices.size()) throw std::runtime_error("no such device");
    opened = device;
    told = callback;
  }
  void startStream() const {
    if (!starts) throw std::runtime_error("does not start");
  }

  std::vector<DeviceInfo> devices;
  bool starts = true;
  unsigned opened = 1000;
  ErrorCallback told = nullptr;
};

/// RtAudio 6: identifiers for devices, errors returned, a callback of the whole object.
struct Audio6 {
  enum ErrorType { RTAUDIO_NO_ERROR, RTAUDIO_WARNING, RTAUDIO_UNKNOWN_ERROR, RTAUDIO_INVALID_USE };
  using ErrorCallback = std::function<void(ErrorType type, const std::string& text)>;
  struct DeviceInfo {
    unsigned ID = 0;
    std::string name;
    unsigned outputChannels = 2;
  };

  std::vector<unsigned> getDeviceIds() const {
    std::vector<unsigned> ids;
    for (const auto& device : devices) ids.push_back(device.ID);
    return ids;
  }
  DeviceInfo getDeviceInfo(unsigned id) const {
    for (const auto& device : devices) {
      if (device.ID == id) return device;
    }
    return {};
  }
  void setErrorCallback(ErrorCallback callback) { told = std::move(callback); }
  ErrorType openStream(unsigned device) {
    if (getDeviceInfo(device).ID == 0) return RTAUDIO_INVALID_USE;
    opened = device;
    toldWhenOpened = told != nullptr;
    return result;
  }
  ErrorType startStream() const { return result; }
  std::string getErrorText() const { return "what went wrong"; }

  std::vector<DeviceInfo> devices;
  ErrorType result = RTAUDIO_NO_ERROR;
  unsigned opened = 1000;
  bool toldWhenOpened = false;
  ErrorCallback told = {};
};

std::vector<std::string> told;
const auto tell = [](auto type, const std::string& text) {
  told.push_back((host::rtaudio::isWarning(type) ? "warning: " : "error: ") + text);
};

template <typename Call>
std::string failure(Call call) {
  try {
    call();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "";
}

template <typename Audio>
std::vector<std::pair<unsigned, std::string>> playing(Audio& audio) {
  std::vector<std::pair<unsigned, std::string>> found;
  for (const auto& [number, info] : host::rtaudio::playingDevices(audio)) {
    found.emplace_back(number, info.name);
  }
  return found;
}

auto called(const std::string& name) {
  return [name](const auto& info) { return info.name == name; };
}

TEST(RtAudio5, ListsDevicesByTheirPlace) {
  Audio5 audio{.devices = {{.name = "speakers"},
                           {.probed = false, .name = "busy"},
                           {.name = "microphone", .outputChannels = 0},
                           {.name = "headphones", .outputChannels = 1}}};
  EXPECT_THAT(playing(audio), ElementsAre(Pair(0, "speakers"), Pair(3, "headphones")));
}

TEST(RtAudio6, ListsDevicesByTheirIdentifiers) {
  Audio6 audio{.devices = {{130, "speakers"}, {129, "microphone", 0}, {140, "headphones", 1}}};
  EXPECT_THAT(playing(audio), ElementsAre(Pair(130, "speakers"), Pair(140, "headphones")));
}

TEST(RtAudio5, OpensADeviceByItsPlace) {
  Audio5 audio{.devices = {{.name = "speakers"}, {.name = "headphones"}}};
  EXPECT_EQ(host::rtaudio::numberToOpen(audio, 1, called("headphones")), 1U);
}

TEST(RtAudio6, OpensADeviceByTheIdentifierThatThisObjectGaveIt) {
  Audio6 audio{.devices = {{130, "speakers"}, {140, "headphones"}}};
  EXPECT_EQ(host::rtaudio::numberToOpen(audio, 130, called("headphones")), 140U);
  EXPECT_EQ(host::rtaudio::numberToOpen(audio, 7, called("speakers")), 130U);
}

TEST(RtAudio6, TellsTwoDevicesOfOneNameByTheirIdentifiers) {
  Audio6 audio{.devices = {{130, "speakers"}, {140, "speakers"}}};
  EXPECT_EQ(host::rtaudio::numberToOpen(audio, 140, called("speakers")), 140U);
}

TEST(RtAudio6, RefusesADeviceThatIsGone) {
  Audio6 audio{.devices = {{130, "speakers"}}};
  const auto number = host::rtaudio::numberToOpen(audio, 140, called("headphones"));
  EXPECT_EQ(failure([&] { host::rtaudio::openStream(audio, tell, number); }), "what went wrong");
  EXPECT_EQ(audio.opened, 1000U);
}

TEST(RtAudio5, OpensAStreamThatTellsOfItsErrors) {
  Audio5 audio{.devices = {{.name = "speakers"}}};
  host::rtaudio::openStream(audio, tell, 0U);
  EXPECT_EQ(audio.opened, 0U);
  told.clear();
  audio.told(Audio5::WARNING, "slow");
  audio.told(Audio5::DEBUG_WARNING, "slower");
  audio.told(Audio5::UNSPECIFIED, "gone");
  EXPECT_THAT(told, ElementsAre("warning: slow", "warning: slower", "error: gone"));
}

TEST(RtAudio6, OpensAStreamThatTellsOfItsErrors) {
  Audio6 audio{.devices = {{130, "speakers"}}};
  host::rtaudio::openStream(audio, tell, 130U);
  EXPECT_EQ(audio.opened, 130U);
  EXPECT_TRUE(audio.toldWhenOpened);
  told.clear();
  audio.told(Audio6::RTAUDIO_WARNING, "slow");
  audio.told(Audio6::RTAUDIO_UNKNOWN_ERROR, "gone");
  EXPECT_THAT(told, ElementsAre("warning: slow", "error: gone"));
}

TEST(RtAudio5, ThrowsWhatGoesWrong) {
  Audio5 audio;
  EXPECT_EQ(failure([&] { host::rtaudio::openStream(audio, tell, 0U); }), "no such device");
  EXPECT_EQ(failure([&] { host::rtaudio::startStream(audio); }), "");
  audio.starts = false;
  EXPECT_EQ(failure([&] { host::rtaudio::startStream(audio); }), "does not start");
}

TEST(RtAudio6, ThrowsWhatIsReturned) {
  Audio6 audio{.devices = {{130, "speakers"}}};
  const auto failures = [&](Audio6::ErrorType result) {
    audio.result = result;
    return failure([&] { host::rtaudio::openStream(audio, tell, 130U); }) + "; " +
           failure([&] { host::rtaudio::startStream(audio); });
  };
  EXPECT_EQ(failures(Audio6::RTAUDIO_NO_ERROR), "; ");
  EXPECT_EQ(failures(Audio6::RTAUDIO_WARNING), "; ");
  EXPECT_EQ(failures(Audio6::RTAUDIO_UNKNOWN_ERROR), "what went wrong; what went wrong");
}

}  // namespace

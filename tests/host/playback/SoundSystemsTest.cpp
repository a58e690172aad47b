#include <gmock/gmock.h>
#include <rtaudio/RtAudio.h>

#include <string>
#include <thread>
#include <vector>

#include "host/messages/Failure.h"
#include "host/playback/Devices.h"

namespace {

std::vector<std::string> deviceNames() {
  std::vector<std::string> names;
  for (const auto& device : host::outputDevices()) names.push_back(device.name);
  return names;
}

class NoRenderer final : public host::BlockRenderer {
 public:
  void renderBlock(float* const* /*planes*/, std::uint32_t /*frames*/) noexcept override {}
};

TEST(SoundSystems, AreAskedForDevicesOnAnyThread) {
  const auto names = deviceNames();
  std::vector<std::string> others;
  std::thread other([&] {
    for (int i = 0; i < 5; ++i) others = deviceNames();
  });
  for (int i = 0; i < 5; ++i) EXPECT_EQ(deviceNames(), names);
  other.join();
  EXPECT_EQ(others, names);
}

TEST(SoundSystems, PrintNothingWhileDevicesAreLookedFor) {
  testing::internal::CaptureStderr();
  static_cast<void>(host::outputDevices());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(SoundSystems, PrintNothingWhenADeviceDoesNotOpen) {
  host::Device gone;
  gone.name = "ALSA: gone";
  gone.system = RtAudio::LINUX_ALSA;
  gone.index = 1000;
  gone.channels = 2;
  NoRenderer renderer;
  testing::internal::CaptureStderr();
  EXPECT_THROW(static_cast<void>(host::openDevice(gone, {48000, 2}, renderer)), host::Failure);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace

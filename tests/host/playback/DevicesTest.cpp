#include <gmock/gmock.h>

#include "host/messages/Failure.h"
#include "host/playback/Devices.h"

using host::Device;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

Device named(const std::string& name, bool isDefault = false) {
  Device device;
  device.name = name;
  device.isDefault = isDefault;
  return device;
}

const std::vector<Device> devices = {named("Jack: system", true), named("Pulse: USB Audio Two"),
                                     named("Pulse: USB Audio", true), named("ALSA: default")};

std::string found(std::string_view name) {
  const auto device = host::deviceNamed(devices, name);
  return device ? device->name : "";
}

TEST(Devices, AreFoundByTheirWholeName) {
  EXPECT_EQ(found("Pulse: USB Audio"), "Pulse: USB Audio");
  EXPECT_EQ(found("Jack: system"), "Jack: system");
}

TEST(Devices, AreFoundByAPartOfTheirName) {
  EXPECT_EQ(found("default"), "ALSA: default");
  EXPECT_EQ(found("USB"), "Pulse: USB Audio Two");
}

TEST(Devices, AreFoundInCapitalsOrNot) {
  EXPECT_EQ(found("pulse: usb audio"), "Pulse: USB Audio");
  EXPECT_EQ(found("SYSTEM"), "Jack: system");
}

TEST(Devices, AreNotFoundUnderAnotherName) {
  EXPECT_EQ(found("Gramophone"), "");
  EXPECT_FALSE(host::deviceNamed({}, "default"));
}

TEST(Devices, AreAllListedWhenTheOneAskedForIsMissing) {
  try {
    static_cast<void>(host::requiredDevice(devices, "Gramophone"));
    FAIL();
  } catch (const host::Failure& failure) {
    EXPECT_THAT(failure.what(), HasSubstr("'Gramophone'"));
    EXPECT_THAT(failure.what(), HasSubstr("none, 'Jack: system', 'Pulse: USB Audio Two'"));
  }
}

std::vector<std::string> order(std::vector<Device> devices, std::uint32_t sampleRate,
                               std::string_view chosen = {}) {
  std::vector<std::string> names;
  for (const auto& device : host::inOrderOfPreference(std::move(devices), sampleRate, chosen)) {
    names.push_back(device.name);
  }
  return names;
}

TEST(Devices, AreTriedDefaultsFirst) {
  EXPECT_THAT(order(devices, 48000), ElementsAre("Jack: system", "Pulse: USB Audio",
                                                 "Pulse: USB Audio Two", "ALSA: default"));
}

TEST(Devices, ThatLackTheRateAreTriedLast) {
  auto some = devices;
  some[0].sampleRates = {48000};
  some[1].sampleRates = {44100, 48000};
  EXPECT_THAT(order(some, 44100), ElementsAre("Pulse: USB Audio", "Pulse: USB Audio Two",
                                              "ALSA: default", "Jack: system"));
}

TEST(Devices, ThatTheUserChoseAreTriedFirstWhateverTheirRate) {
  auto some = devices;
  some[3].sampleRates = {48000};
  EXPECT_THAT(
      order(some, 44100, "ALSA: default"),
      ElementsAre("ALSA: default", "Jack: system", "Pulse: USB Audio", "Pulse: USB Audio Two"));
  EXPECT_EQ(order(some, 44100, "Gramophone").front(), "Jack: system");
}

std::uint32_t playingRate(std::vector<unsigned> rates, unsigned preferred, std::uint32_t wanted) {
  Device device;
  device.sampleRates = std::move(rates);
  device.preferredRate = preferred;
  return host::playingRate(device, wanted);
}

TEST(Devices, PlayAtTheRateThatIsAskedForWhereTheyCan) {
  EXPECT_EQ(playingRate({44100, 48000}, 48000, 44100), 44100U);
  EXPECT_EQ(playingRate({}, 0, 192000), 192000U);
}

TEST(Devices, PlayAtTheirPreferredRateWhereItKeepsTheWholeBand) {
  EXPECT_EQ(playingRate({48000, 96000}, 96000, 44100), 96000U);
  EXPECT_EQ(playingRate({48000}, 48000, 44100), 48000U);
  EXPECT_EQ(playingRate({44100, 48000, 96000, 192000}, 48000, 88200), 96000U);
}

TEST(Devices, PlayAtTheLowestRateThatKeepsTheWholeBandOrElseAtTheirHighest) {
  EXPECT_EQ(playingRate({192000, 96000, 48000}, 0, 88200), 96000U);
  EXPECT_EQ(playingRate({48000, 44100, 22050}, 44100, 192000), 48000U);
  EXPECT_EQ(playingRate({22050, 48000, 44100}, 0, 88200), 48000U);
}

}  // namespace

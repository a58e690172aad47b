#include <gmock/gmock.h>

#include "host/Devices.h"
#include "host/Failure.h"

using host::Device;
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

TEST(Devices, AreAllNamedToWhomAsksForOneThatIsNotThere) {
  try {
    static_cast<void>(host::requiredDevice(devices, "Gramophone"));
    FAIL();
  } catch (const host::Failure& failure) {
    EXPECT_THAT(failure.what(), HasSubstr("'Gramophone'"));
    EXPECT_THAT(failure.what(), HasSubstr("none, 'Jack: system', 'Pulse: USB Audio Two'"));
  }
}

TEST(Devices, AreTriedDefaultsFirst) {
  const auto order = host::inOrderOfPreference(devices);
  ASSERT_EQ(order.size(), 4U);
  EXPECT_EQ(order[0].name, "Jack: system");
  EXPECT_EQ(order[1].name, "Pulse: USB Audio");
  EXPECT_EQ(order[2].name, "Pulse: USB Audio Two");
}

}  // namespace

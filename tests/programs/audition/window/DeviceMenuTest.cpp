#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <atomic>
#include <mutex>

#include "programs/audition/window/DeviceMenu.h"

using host::Device;
using host::audition::DeviceMenu;

namespace {

constexpr int kInterval = 30;

Device device(const std::string& name) {
  Device device;
  device.name = name;
  return device;
}

/// A menu over devices that come and go.
class Devices : public testing::Test {
 protected:
  void plug(const std::vector<Device>& devices) {
    const std::lock_guard lock(mutex_);
    devices_ = devices;
  }
  QStringList names() {
    QStringList names;
    for (const auto* const action : menu_.actions()) {
      if (!action->isSeparator()) names << action->text();
    }
    return names;
  }
  QAction* action(const QString& name) {
    for (auto* const action : menu_.actions()) {
      if (action->text() == name) return action;
    }
    return nullptr;
  }
  static void turnFor(int milliseconds) {
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < milliseconds) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, kInterval);
    }
  }
  /// Runs the event loop until the menu holds these; false if it never does.
  bool comesToHold(const QStringList& wanted) {
    QElapsedTimer time;
    time.start();
    while (names() != wanted && time.elapsed() < 10000) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return names() == wanted;
  }

  std::mutex mutex_;
  std::vector<Device> devices_ = {device("Speakers")};
  std::atomic<int> looks_ = 0;
  QMenu menu_;
  DeviceMenu devicesOf_{&menu_,
                        [this] {
                          ++looks_;
                          const std::lock_guard lock(mutex_);
                          return devices_;
                        },
                        kInterval};
};

TEST_F(Devices, ArePutIntoTheMenuAsTheyAreFound) {
  devicesOf_.setCurrent(std::nullopt, true);
  Q_EMIT menu_.aboutToShow();
  EXPECT_EQ(names(), (QStringList{"No Device (silent)", "Looking for devices…"}));
  EXPECT_TRUE(comesToHold({"No Device (silent)", "Speakers"}));
  EXPECT_TRUE(action("No Device (silent)")->isChecked());
}

TEST_F(Devices, TurnUpWhileTheMenuIsOpen) {
  devicesOf_.setCurrent(device("Speakers"), true);
  Q_EMIT menu_.aboutToShow();
  ASSERT_TRUE(comesToHold({"No Device (silent)", "Speakers"}));
  EXPECT_TRUE(action("Speakers")->isChecked());
  plug({device("Speakers"), device("Headphones")});
  EXPECT_TRUE(comesToHold({"No Device (silent)", "Speakers", "Headphones"}));
  plug({device("Headphones")});
  // The device in use may be missing from the system's list.
  EXPECT_TRUE(comesToHold({"No Device (silent)", "Headphones", "Speakers"}));
}

TEST_F(Devices, AreNotLookedForWhileTheMenuIsClosed) {
  Q_EMIT menu_.aboutToShow();
  ASSERT_TRUE(comesToHold({"No Device (silent)", "Speakers"}));
  Q_EMIT menu_.aboutToHide();
  // One look for devices may still be under way.
  turnFor(5 * kInterval);
  const int looks = looks_;
  turnFor(10 * kInterval);
  EXPECT_EQ(looks_, looks);
}

TEST_F(Devices, AreChosenByTheirAction) {
  std::optional<Device> chosen;
  QObject::connect(&devicesOf_, &DeviceMenu::chosen,
                   [&](const std::optional<Device>& device) { chosen = device; });
  devicesOf_.setCurrent(std::nullopt, true);
  Q_EMIT menu_.aboutToShow();
  ASSERT_TRUE(comesToHold({"No Device (silent)", "Speakers"}));
  action("Speakers")->trigger();
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "Speakers");
}

TEST_F(Devices, CannotBeChosenWithoutAFile) {
  devicesOf_.setCurrent(std::nullopt, false);
  Q_EMIT menu_.aboutToShow();
  ASSERT_TRUE(comesToHold({"No Device (silent)", "Speakers"}));
  EXPECT_FALSE(action("Speakers")->isEnabled());
}

}  // namespace

#pragma once

#include <QMenu>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "host/analysis/BackgroundWork.h"
#include "host/playback/Devices.h"

namespace host::audition {

/// Fills a menu with the available devices, and goes on looking while it is open, so that a device
/// just plugged in turns up. It looks for devices on a thread of its own.
class DeviceMenu : public QObject {
  Q_OBJECT

 public:
  /// Called on other threads.
  using Look = std::function<std::vector<Device>()>;

  /// How often it looks while the menu is open, in milliseconds.
  static constexpr int kLookAgain = 2000;

  explicit DeviceMenu(QMenu* menu, Look look = outputDevices, int milliseconds = kLookAgain);
  ~DeviceMenu() override;

  /// The device in use; nothing while playing silently.
  void setCurrent(const std::optional<Device>& device, bool canChoose);

 Q_SIGNALS:
  /// Nothing for no device.
  void chosen(const std::optional<host::Device>& device);

 private:
  void open();
  void close();
  void startLooking();
  void takeFound();
  void fill();
  void add(const QString& name, const std::optional<Device>& device);

  QMenu* menu_;
  Look look_;
  std::optional<Device> current_;
  bool canChoose_ = false;
  bool hasLooked_ = false;
  std::vector<Device> devices_;
  QTimer lookAgain_;
  QTimer checkFound_;
  std::shared_ptr<std::vector<Device>> found_;
  std::unique_ptr<BackgroundWork> work_;
};

}  // namespace host::audition

#include "programs/audition/window/DeviceMenu.h"

#include <algorithm>
#include <utility>

namespace host::audition {
namespace {

constexpr int kFoundMilliseconds = 50;

bool sameNames(const std::vector<Device>& one, const std::vector<Device>& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const Device& a, const Device& b) { return a.name == b.name; });
}

}  // namespace

DeviceMenu::DeviceMenu(QMenu* menu, Look look, int milliseconds)
    : menu_(menu), look_(std::move(look)) {
  connect(menu_, &QMenu::aboutToShow, this, &DeviceMenu::open);
  connect(menu_, &QMenu::aboutToHide, this, &DeviceMenu::close);
  connect(&lookAgain_, &QTimer::timeout, this, &DeviceMenu::startLooking);
  connect(&checkFound_, &QTimer::timeout, this, &DeviceMenu::takeFound);
  lookAgain_.setInterval(milliseconds);
  checkFound_.setInterval(kFoundMilliseconds);
}

DeviceMenu::~DeviceMenu() = default;

void DeviceMenu::setCurrent(const std::optional<Device>& device, bool canChoose) {
  current_ = device;
  canChoose_ = canChoose;
}

void DeviceMenu::open() {
  fill();
  startLooking();
  lookAgain_.start();
}

void DeviceMenu::close() {
  lookAgain_.stop();
}

void DeviceMenu::startLooking() {
  if (work_) return;
  found_ = std::make_shared<std::vector<Device>>();
  work_ = std::make_unique<BackgroundWork>(
      [look = look_, found = found_](Progress& /*progress*/) { *found = look(); });
  checkFound_.start();
}

void DeviceMenu::takeFound() {
  if (!work_ || !work_->hasEnded()) return;
  checkFound_.stop();
  work_.reset();
  const bool isNew = !hasLooked_ || !sameNames(devices_, *found_);
  hasLooked_ = true;
  devices_ = std::move(*found_);
  if (isNew) fill();
}

void DeviceMenu::fill() {
  menu_->clear();
  add(tr("No Device (silent)"), std::nullopt);
  menu_->addSeparator();
  auto devices = devices_;
  // A device in use may be missing from the system's list.
  if (current_ && !deviceNamed(devices, current_->name)) devices.push_back(*current_);
  for (const auto& device : devices) add(QString::fromStdString(device.name), device);
  if (!hasLooked_) menu_->addAction(tr("Looking for devices…"))->setEnabled(false);
}

void DeviceMenu::add(const QString& name, const std::optional<Device>& device) {
  auto* const action = menu_->addAction(name, this, [this, device] { Q_EMIT chosen(device); });
  action->setCheckable(true);
  action->setChecked(device ? current_ && current_->name == device->name : !current_);
  action->setEnabled(canChoose_);
}

}  // namespace host::audition

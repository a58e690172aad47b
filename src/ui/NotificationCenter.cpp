#include "ui/NotificationCenter.h"

#include <iterator>
#include <list>
#include <utility>
#include <vector>

namespace ui {

namespace {

struct Registration {
  const void* observer;
  std::string name;
  const void* object;
  std::function<void(const Notification&)> deliver;
  bool isRemoved = false;

  bool matches(std::string_view postedName, const void* postedObject) const {
    return (object == nullptr || object == postedObject) && name == postedName;
  }
};

NotificationCenter*& centerInPlaceOfOurs() {
  static NotificationCenter* center = nullptr;
  return center;
}

}  // namespace

class NotificationCenter::Registry {
 public:
  // Shared with the deliveries in progress, so that no function is destroyed inside its own call.
  std::list<std::shared_ptr<Registration>> registrations;
};

NotificationCenter& NotificationCenter::defaultCenter() {
  // Never destroyed: observers may outlive every static object.
  static NotificationCenter& center = *new NotificationCenter;
  return centerInPlaceOfOurs() != nullptr ? *centerInPlaceOfOurs() : center;
}

void NotificationCenter::setDefaultCenter(NotificationCenter* center) {
  centerInPlaceOfOurs() = center;
}

NotificationCenter::NotificationCenter() : registry_(std::make_unique<Registry>()) {}

NotificationCenter::~NotificationCenter() = default;

void NotificationCenter::addObserver(const void* observer, std::string_view name,
                                     const void* object,
                                     std::function<void(const Notification&)> deliver) {
  registry_->registrations.push_back(std::make_shared<Registration>(
      Registration{observer, std::string(name), object, std::move(deliver)}));
}

void NotificationCenter::removeObserver(const void* observer) {
  // Destroyed last: what a removed function holds may call back in here from its destructor.
  std::list<std::shared_ptr<Registration>> removed;
  auto& registrations = registry_->registrations;
  for (auto next = registrations.begin(); next != registrations.end();) {
    const auto current = next++;
    if ((*current)->observer == observer) {
      (*current)->isRemoved = true;
      removed.splice(removed.end(), registrations, current);
    }
  }
}

void NotificationCenter::post(std::string_view name, const void* object) {
  std::vector<std::shared_ptr<Registration>> receivers;
  for (const auto& registration : registry_->registrations) {
    if (registration->matches(name, object)) {
      receivers.push_back(registration);
    }
  }
  const Notification notification{name, object};
  for (const auto& receiver : receivers) {
    if (!receiver->isRemoved) {
      receiver->deliver(notification);
    }
  }
}

}  // namespace ui

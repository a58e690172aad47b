#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "ui/Export.h"

namespace ui {

struct Notification {
  std::string_view name;
  /// The object it is about; used only as an identity.
  const void* object;
};

/// Announcements within the process, delivered synchronously in the order of registration.
/// An observer removed during a delivery is no longer called; one added is first called by the next
/// post. An exception thrown by an observer ends the delivery and reaches the poster. Main thread
/// only.
class UI_EXPORT NotificationCenter {
 public:
  static NotificationCenter& defaultCenter();
  /// Replaces the default centre with a toolkit's own; null restores it. Not owned. Observers stay
  /// with the centre that they were added to.
  static void setDefaultCenter(NotificationCenter* center);

  NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;
  virtual ~NotificationCenter();

  /// `observer` only names the registration for `removeObserver`. A null `object` observes the name
  /// from every object.
  virtual void addObserver(const void* observer, std::string_view name, const void* object,
                           std::function<void(const Notification&)> deliver);
  /// Removes every registration of the observer.
  virtual void removeObserver(const void* observer);
  virtual void post(std::string_view name, const void* object);

 private:
  class Registry;
  std::unique_ptr<Registry> registry_;
};

}  // namespace ui

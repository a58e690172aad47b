#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "ui/Export.h"

namespace ui {

struct Notification {
  std::string_view name;
  /// The object that it is about; only its identity counts.
  const void* object;
};

/// Announcements within the process, delivered synchronously in the order of registration.
/// An observer that is removed during a delivery is not called any more; one that is added is first
/// called by the next post. An exception of an observer ends that delivery and reaches whoever
/// posted. Main thread only.
class UI_EXPORT NotificationCenter {
 public:
  static NotificationCenter& defaultCenter();
  /// Puts a toolkit's own centre in the place of the default one; null brings that back. Not owned.
  /// What is observed stays with the centre where it was asked for.
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

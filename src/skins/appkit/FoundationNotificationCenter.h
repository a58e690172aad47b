#pragma once

#import <Foundation/Foundation.h>

#include "ui/NotificationCenter.h"

namespace ui::appkit {

/// NSNotificationCenter's default centre, so that what the view announces reaches everybody in the
/// process. One of the core's objects is represented there by `nativeObject`.
class FoundationNotificationCenter final : public NotificationCenter {
 public:
  FoundationNotificationCenter();
  ~FoundationNotificationCenter() override;

  void addObserver(const void* observer, std::string_view name, const void* object,
                   std::function<void(const Notification&)> deliver) override;
  void removeObserver(const void* observer) override;
  void post(std::string_view name, const void* object) override;

 private:
  class Observers;
  std::unique_ptr<Observers> observers_;
};

/// From now on the native object, which is not retained, stands for the core's; null ends that.
void representObject(const void* object, id native);
/// What stands for the object: itself if nothing else does, as a value. Null for null.
id nativeObject(const void* object);

}  // namespace ui::appkit

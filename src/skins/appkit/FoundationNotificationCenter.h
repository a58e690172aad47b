#pragma once

#import <Foundation/Foundation.h>

#include "ui/NotificationCenter.h"

namespace ui::appkit {

/// The default NSNotificationCenter, so that the view's notifications reach every observer in the
/// process. There each of the core's objects is represented by its `nativeObject`.
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

/// Makes the native object represent the core's from now on; nil ends that. It is not retained.
void representObject(const void* object, id native);
/// The object that represents the core's: the one set by `representObject` or else an NSValue with
/// the pointer. Nil for null.
id nativeObject(const void* object);

}  // namespace ui::appkit

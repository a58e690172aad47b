#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <utility>

#include "skins/appkit/Retained.h"

namespace ui::appkit {

/// Receives actions and timer events.
class ActionReceiver {
 public:
  virtual ~ActionReceiver() = default;
  virtual void receive(id sender) = 0;
};

}  // namespace ui::appkit

/// Forwards what it is sent to a receiver, which it does not own; null stops that. Anything the
/// receiver throws is logged and goes no further.
@interface Velk_ActionTarget : NSObject {
  ui::appkit::ActionReceiver* _receiver;
}
- (void)setReceiver:(ui::appkit::ActionReceiver*)receiver;
- (void)perform:(id)sender;
@end

namespace ui::appkit {

/// Owns a target that does nothing once this is destroyed, even if a sender still retains it.
class OwnedTarget final : public ActionReceiver {
 public:
  explicit OwnedTarget(std::function<void(id sender)> work)
      : work_(std::move(work)),
        target_(Retained<Velk_ActionTarget*>::adopt([[Velk_ActionTarget alloc] init])) {
    [target_.get() setReceiver:this];
  }
  OwnedTarget(const OwnedTarget&) = delete;
  OwnedTarget& operator=(const OwnedTarget&) = delete;
  ~OwnedTarget() override { [target_.get() setReceiver:nullptr]; }

  void receive(id sender) override {
    // Call a copy, because the work may destroy this object.
    const std::function<void(id)> work = work_;
    work(sender);
  }

  Velk_ActionTarget* get() const { return target_.get(); }

 private:
  std::function<void(id sender)> work_;
  Retained<Velk_ActionTarget*> target_;
};

}  // namespace ui::appkit

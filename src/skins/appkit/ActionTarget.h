#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <utility>

#include "skins/appkit/Retained.h"

namespace ui::appkit {

/// Is told of an action, or that a timer fired.
class ActionReceiver {
 public:
  virtual ~ActionReceiver() = default;
  virtual void receive(id sender) = 0;
};

}  // namespace ui::appkit

/// Hands what it is sent to a receiver, which is not owned; null ends that. What the receiver
/// throws is logged and goes no further.
@interface Velk_ActionTarget : NSObject {
  ui::appkit::ActionReceiver* _receiver;
}
- (void)setReceiver:(ui::appkit::ActionReceiver*)receiver;
- (void)perform:(id)sender;
@end

namespace ui::appkit {

/// A target that does nothing any more once its owner is gone, even while a sender still holds it.
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
    // The work may end what holds it.
    const std::function<void(id)> work = work_;
    work(sender);
  }

  Velk_ActionTarget* get() const { return target_.get(); }

 private:
  std::function<void(id sender)> work_;
  Retained<Velk_ActionTarget*> target_;
};

}  // namespace ui::appkit

#include "skins/appkit/AppKitRunLoop.h"

#import <AppKit/AppKit.h>

#include <utility>

#include "skins/appkit/ActionTarget.h"

namespace ui::appkit {

namespace {

NSString* modeName(RunLoopMode mode) {
  switch (mode) {
    case RunLoopMode::EventTracking:
      return NSEventTrackingRunLoopMode;
    case RunLoopMode::ModalPanel:
      return NSModalPanelRunLoopMode;
    case RunLoopMode::Default:
      break;
  }
  return NSDefaultRunLoopMode;
}

class AppKitTimer final : public Timer, public Deferred {
 public:
  AppKitTimer(double interval, bool repeats, std::function<void()> fire)
      : target_([fire = std::move(fire)](id) { fire(); }),
        timer_([NSTimer timerWithTimeInterval:interval
                                       target:target_.get()
                                     selector:@selector(perform:)
                                     userInfo:nil
                                      repeats:repeats ? YES : NO]) {
    addToMode(RunLoopMode::Default);
  }
  ~AppKitTimer() override { invalidate(); }

  void addToMode(RunLoopMode mode) override {
    [[NSRunLoop currentRunLoop] addTimer:timer_.get() forMode:modeName(mode)];
  }
  void invalidate() override { [timer_.get() invalidate]; }

 private:
  OwnedTarget target_;
  Retained<NSTimer*> timer_;
};

}  // namespace

std::unique_ptr<Timer> AppKitRunLoop::scheduledTimer(double interval, std::function<void()> fire) {
  return std::make_unique<AppKitTimer>(interval, true, std::move(fire));
}

std::unique_ptr<Deferred> AppKitRunLoop::performLater(std::function<void()> work) {
  return performAfter(0.0, std::move(work));
}

std::unique_ptr<Deferred> AppKitRunLoop::performAfter(double delay, std::function<void()> work) {
  auto timer = std::make_unique<AppKitTimer>(delay, false, std::move(work));
  timer->addToMode(RunLoopMode::EventTracking);
  timer->addToMode(RunLoopMode::ModalPanel);
  return timer;
}

}  // namespace ui::appkit

#include "skins/appkit/AudioUnitPump.h"

#ifdef GNUSTEP

#import <AppKit/AppKit.h>

#include <chrono>
#include <cstdint>
#include <memory>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/LoopPump.h"
#include "audio_unit/RunLoop.h"
#include "skins/appkit/ActionTarget.h"
#include "skins/appkit/AppKitRunLoop.h"
#include "ui/Log.h"

/// Tells a receiver, which it does not own, that a watched descriptor is readable.
@interface Velk_DescriptorWatcher : NSObject <RunLoopEvents> {
  ui::appkit::ActionReceiver* _receiver;
}
- (instancetype)initWithReceiver:(ui::appkit::ActionReceiver*)receiver;
@end

@implementation Velk_DescriptorWatcher

- (instancetype)initWithReceiver:(ui::appkit::ActionReceiver*)receiver {
  self = [super init];
  if (self != nil) {
    _receiver = receiver;
  }
  return self;
}

- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode {
  _receiver->receive(self);
}

@end

namespace ui::appkit {

namespace {

/// Pumps when the descriptor is readable and when the next event is due.
class AudioUnitPump final : public ActionReceiver {
 public:
  AudioUnitPump()
      : watcher_(Retained<id>::adopt([[Velk_DescriptorWatcher alloc] initWithReceiver:this])) {
    NSString* const modes[] = {NSDefaultRunLoopMode, NSEventTrackingRunLoopMode,
                               NSModalPanelRunLoopMode};
    for (NSString* mode : modes) {
      [[NSRunLoop currentRunLoop]
          addEvent:reinterpret_cast<void*>(std::intptr_t{pump_.descriptor()})
              type:ET_RDESC
           watcher:watcher_.get()
           forMode:mode];
    }
    receive(nil);
  }

  void receive(id /*sender*/) override {
    runGuarded([this] {
      const auto wait = pump_.pump();
      due_ = wait ? runLoop_.performAfter(std::chrono::duration<double>(*wait).count(),
                                          [this] { receive(nil); })
                  : nullptr;
    });
  }

 private:
  audio_unit::LoopPump pump_;
  /// Retained here, because a run loop does not retain its watchers.
  Retained<id> watcher_;
  AppKitRunLoop runLoop_;
  std::unique_ptr<Deferred> due_;
};

}  // namespace

void pumpAudioUnitEvents() {
  if (!CFRunLoopGetCurrent()->hasWakeUp()) {
    // Never destroyed, like the main thread's run loop.
    static AudioUnitPump& pump = *new AudioUnitPump;
    static_cast<void>(pump);
  }
}

}  // namespace ui::appkit

#else

namespace ui::appkit {

void pumpAudioUnitEvents() {}

}  // namespace ui::appkit

#endif

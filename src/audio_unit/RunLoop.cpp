#include "audio_unit/RunLoop.h"

#include <utility>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/Dispatcher.h"

namespace audio_unit {

RunLoop::RunLoop() : dispatcher_(std::make_unique<Dispatcher>()) {}

RunLoop::~RunLoop() = default;

std::optional<RunLoop::TimePoint> RunLoop::pump(TimePoint now) {
  return dispatcher_->pump(now);
}

void RunLoop::setWakeUp(std::function<void()> wakeUp) {
  dispatcher_->wakeUp().set(std::move(wakeUp));
}

bool RunLoop::hasWakeUp() const {
  return dispatcher_->wakeUp().isSet();
}

}  // namespace audio_unit

CFRunLoopRef CFRunLoopGetCurrent() {
  thread_local audio_unit::RunLoop current;
  return &current;
}

#include "audio_unit/LoopPump.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/RunLoop.h"

namespace audio_unit {

LoopPump::LoopPump()
    : loop_(*CFRunLoopGetCurrent()), descriptor_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
  if (descriptor_ < 0) {
    throw std::system_error(errno, std::generic_category(), "eventfd");
  }
  // The write fails only if the counter is full, and then the descriptor is readable anyway.
  loop_.setWakeUp(
      [descriptor = descriptor_] { static_cast<void>(::eventfd_write(descriptor, 1)); });
}

LoopPump::~LoopPump() {
  loop_.setWakeUp({});
  ::close(descriptor_);
}

std::optional<std::chrono::steady_clock::duration> LoopPump::pump() {
  eventfd_t value = 0;
  static_cast<void>(::eventfd_read(descriptor_, &value));
  const auto now = std::chrono::steady_clock::now();
  const auto due = loop_.pump(now);
  if (!due) {
    return std::nullopt;
  }
  return std::max(*due - now, std::chrono::steady_clock::duration::zero());
}

}  // namespace audio_unit

#pragma once

#include <chrono>

#include "audio_unit/AUEventListener.h"

namespace audio_unit {

class Dispatcher;

/// A listener as `AUEventListenerCreate` makes it. What it is registered for is in its run loop.
class EventListener {
 public:
  AUEventListenerProc proc;
  void* userData;
  std::chrono::microseconds notificationInterval;
  /// Null once the run loop is gone: nothing arrives any more.
  Dispatcher* dispatcher;
};

}  // namespace audio_unit

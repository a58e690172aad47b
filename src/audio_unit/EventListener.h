#pragma once

#include <chrono>

#include "audio_unit/AUEventListener.h"

namespace audio_unit {

class Dispatcher;

/// A listener made by `AUEventListenerCreate`. Its run loop's dispatcher keeps its registrations.
class EventListener {
 public:
  AUEventListenerProc proc;
  void* userData;
  std::chrono::microseconds notificationInterval;
  /// Null once the run loop is gone; nothing arrives then.
  Dispatcher* dispatcher;
};

}  // namespace audio_unit

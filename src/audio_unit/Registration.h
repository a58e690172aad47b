#pragma once

#include <memory>
#include <optional>

#include "audio_unit/EventListener.h"
#include "audio_unit/RunLoop.h"
#include "audio_unit/UnitIdentity.h"

namespace audio_unit {

/// One object's interest in one event. Gesture and property events are delivered without passing
/// through here; a parameter's newest value is kept here until the listener may be called again.
struct Registration {
  enum class ValueState { Quiet, Waiting, Due };

  EventListener* listener;
  void* object;
  AudioUnitEvent event;
  std::shared_ptr<const UnitIdentity> unit;
  /// Position among the registrations of its run loop.
  UInt64 order;
  /// Changes with a lower ticket are ignored.
  UInt64 firstTicket;

  ValueState valueState = ValueState::Quiet;
  AudioUnitParameterValue value = 0;
  UInt64 valueHostTime = 0;
  UInt64 valueTicket = 0;
  std::optional<RunLoop::TimePoint> lastCallback{};

  /// Whether the unit has been destroyed, which ends the registration.
  bool isUnitGone() const { return !unit->isAlive.load(std::memory_order_acquire); }
  bool isForValues() const { return event.mEventType == kAudioUnitEvent_ParameterValueChange; }
  /// When a waiting value may be delivered; nothing means at once.
  std::optional<RunLoop::TimePoint> valueDue() const {
    if (!lastCallback) return std::nullopt;
    return *lastCallback + listener->notificationInterval;
  }
};

}  // namespace audio_unit

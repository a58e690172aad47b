#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "audio_unit/EventListener.h"
#include "audio_unit/Mailbox.h"
#include "audio_unit/Registration.h"
#include "audio_unit/RunLoop.h"

namespace audio_unit {

/// The receiving side of a run loop: keeps its listeners and their registrations, and delivers the
/// changes in its mailbox. Used on the run loop's thread only.
class Dispatcher {
 public:
  using TimePoint = RunLoop::TimePoint;

  Dispatcher();
  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;
  /// Remaining listeners receive nothing more; disposing of them later is safe.
  ~Dispatcher();

  void addListener(EventListener& listener);
  void removeListener(EventListener& listener);
  /// The event must name a living unit. Registering the same pair again has no effect.
  void addRegistration(EventListener& listener, void* object, const AudioUnitEvent& event);

  /// See `RunLoop::pump`.
  std::optional<TimePoint> pump(TimePoint now);

  WakeUp& wakeUp() noexcept { return mailbox_.wakeUp(); }

 private:
  struct Delivery {
    Registration* registration;
    UInt64 ticket;
    /// For gesture and property events; a value's time is kept in its registration.
    UInt64 hostTime;
  };

  void collect(TimePoint now);
  void receive(const ChangeQueue::Entry& entry, std::vector<Delivery>& batch);
  void announceEverything(TimePoint now, UInt64 end, std::vector<Delivery>& batch);
  static void deliver(const Delivery& delivery, TimePoint now);
  std::optional<TimePoint> nextDue(TimePoint now) const;

  Mailbox& mailbox_;
  std::vector<EventListener*> listeners_;
  /// In order of registration.
  std::vector<std::unique_ptr<Registration>> registrations_;
  UInt64 registrationCount_ = 0;
  /// What is due, in order. A member, so that a pump inside a callback continues the outer one.
  std::deque<Delivery> outbox_;
};

}  // namespace audio_unit

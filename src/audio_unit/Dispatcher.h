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

/// The receiving side of a run loop: its listeners, what they are registered for, and the delivery
/// of the changes in its mailbox. Used on the run loop's thread only.
class Dispatcher {
 public:
  using TimePoint = RunLoop::TimePoint;

  Dispatcher();
  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;
  /// Listeners that are left hear nothing any more.
  ~Dispatcher();

  void addListener(EventListener& listener);
  void removeListener(EventListener& listener);
  /// The event names a living unit.
  void addRegistration(EventListener& listener, void* object, const AudioUnitEvent& event);

  std::optional<TimePoint> pump(TimePoint now);

  WakeUp& wakeUp() noexcept { return mailbox_.wakeUp(); }

 private:
  struct Delivery {
    Registration* registration;
    UInt64 ticket;
    /// Of a gesture or property event; a value's is with the registration.
    UInt64 hostTime;
  };

  void collect(TimePoint now);
  void receive(const ChangeQueue::Entry& entry, std::vector<Delivery>& batch);
  void announceEverything(TimePoint now, UInt64 end, std::vector<Delivery>& batch);
  static void deliver(const Delivery& delivery, TimePoint now);
  std::optional<TimePoint> nextDue(TimePoint now) const;

  Mailbox& mailbox_;
  std::vector<EventListener*> listeners_;
  /// In the order in which they were made.
  std::vector<std::unique_ptr<Registration>> registrations_;
  UInt64 registrationCount_ = 0;
  /// Due and in order. Kept here, so that a pump inside a callback goes on where the outer one is.
  std::deque<Delivery> outbox_;
};

}  // namespace audio_unit

#include "audio_unit/Dispatcher.h"

#include <algorithm>
#include <utility>

#include "audio_unit/HostTime.h"
#include "audio_unit/Unit.h"

namespace audio_unit {
namespace {

// A property's address has the same fields as a parameter's.
AudioUnitParameter target(const AudioUnitEvent& event) {
  if (event.mEventType != kAudioUnitEvent_PropertyChange) return event.mArgument.mParameter;
  const AudioUnitProperty& property = event.mArgument.mProperty;
  return {property.mAudioUnit, property.mPropertyID, property.mScope, property.mElement};
}

// Ignores the units: serial numbers tell those apart, since an address may be reused.
bool isSameEvent(const AudioUnitEvent& a, const AudioUnitEvent& b) {
  const AudioUnitParameter first = target(a);
  const AudioUnitParameter second = target(b);
  return a.mEventType == b.mEventType && first.mParameterID == second.mParameterID &&
         first.mScope == second.mScope && first.mElement == second.mElement;
}

bool isNamedSender(const Registration& registration, const Change& change) {
  return registration.listener == change.sendingListener &&
         (!change.sendingObject || registration.object == change.sendingObject);
}

}  // namespace

Dispatcher::Dispatcher() : mailbox_(Mailbox::acquire()) {}

Dispatcher::~Dispatcher() {
  for (EventListener* listener : listeners_) listener->dispatcher = nullptr;
  mailbox_.release();
}

void Dispatcher::addListener(EventListener& listener) {
  listeners_.push_back(&listener);
  if (listeners_.size() == 1) mailbox_.open();
}

void Dispatcher::removeListener(EventListener& listener) {
  std::erase(listeners_, &listener);
  if (listeners_.empty()) mailbox_.close();
  std::erase_if(outbox_,
                [&](const Delivery& each) { return each.registration->listener == &listener; });
  std::erase_if(registrations_, [&](const auto& each) { return each->listener == &listener; });
}

void Dispatcher::addRegistration(EventListener& listener, void* object,
                                 const AudioUnitEvent& event) {
  const std::shared_ptr<const UnitIdentity> unit = target(event).mAudioUnit->identity();
  const bool isKnown =
      std::any_of(registrations_.begin(), registrations_.end(), [&](const auto& registration) {
        return registration->listener == &listener && registration->object == object &&
               registration->unit == unit && isSameEvent(registration->event, event);
      });
  if (isKnown) return;
  registrations_.push_back(std::make_unique<Registration>(
      Registration{&listener, object, event, unit, registrationCount_++, mailbox_.nextTicket()}));
}

std::optional<Dispatcher::TimePoint> Dispatcher::pump(TimePoint now) {
  wakeUp().acknowledge();
  try {
    collect(now);
    while (!outbox_.empty()) {
      const Delivery delivery = outbox_.front();
      outbox_.pop_front();
      deliver(delivery, now);
    }
  } catch (...) {
    // The caller gets no due time for what is left, so ask it to pump again.
    wakeUp().request();
    throw;
  }
  // With the outbox empty, nothing refers to these registrations.
  std::erase_if(registrations_, [](const auto& each) { return each->isUnitGone(); });
  return nextDue(now);
}

void Dispatcher::collect(TimePoint now) {
  // Read before `end`: whatever a thread queued before its overflowing change is then below `end`,
  // and older than the values that are read from the units.
  const bool hasOverflowed = mailbox_.takeOverflow();
  const UInt64 end = mailbox_.nextTicket();
  std::vector<Delivery> batch;
  while (const auto entry = mailbox_.take(end)) receive(*entry, batch);
  if (hasOverflowed) announceEverything(now, end, batch);

  for (const auto& registration : registrations_) {
    if (registration->valueState != Registration::ValueState::Waiting) continue;
    if (registration->valueDue().value_or(now) > now) continue;
    registration->valueState = Registration::ValueState::Due;
    batch.push_back({registration.get(), registration->valueTicket, 0});
  }
  std::sort(batch.begin(), batch.end(), [](const Delivery& a, const Delivery& b) {
    return std::pair(a.ticket, a.registration->order) < std::pair(b.ticket, b.registration->order);
  });
  outbox_.insert(outbox_.end(), batch.begin(), batch.end());
}

void Dispatcher::receive(const ChangeQueue::Entry& entry, std::vector<Delivery>& batch) {
  const Change& change = entry.change;
  for (const auto& pointer : registrations_) {
    Registration& registration = *pointer;
    if (registration.isUnitGone() || registration.unit->serial != change.unitSerial ||
        entry.ticket < registration.firstTicket || !isSameEvent(registration.event, change.event)) {
      continue;
    }
    const bool isSender = isNamedSender(registration, change);
    if (!registration.isForValues()) {
      if (!isSender) batch.push_back({&registration, entry.ticket, change.hostTime});
      continue;
    }
    // The sender's own change causes no callback, but if one is pending it carries the new value.
    if (isSender && registration.valueState == Registration::ValueState::Quiet) continue;
    registration.value = change.value;
    registration.valueHostTime = change.hostTime;
    registration.valueTicket = entry.ticket;
    if (registration.valueState == Registration::ValueState::Quiet) {
      registration.valueState = Registration::ValueState::Waiting;
    }
  }
}

void Dispatcher::announceEverything(TimePoint now, UInt64 end, std::vector<Delivery>& batch) {
  for (const auto& pointer : registrations_) {
    Registration& registration = *pointer;
    if (registration.isUnitGone()) continue;
    switch (registration.event.mEventType) {
      case kAudioUnitEvent_ParameterValueChange: {
        const AudioUnitParameter& parameter = registration.event.mArgument.mParameter;
        AudioUnitParameterValue value = 0;
        if (parameter.mAudioUnit->getParameter(parameter.mParameterID, parameter.mScope,
                                               parameter.mElement, value) == noErr) {
          registration.value = value;
        }
        registration.valueHostTime = hostTime(now);
        registration.valueTicket = end;
        // Ignore changes still being written: they are older than the value just read.
        registration.firstTicket = end;
        if (registration.valueState == Registration::ValueState::Quiet) {
          registration.valueState = Registration::ValueState::Waiting;
        }
        break;
      }
      case kAudioUnitEvent_BeginParameterChangeGesture:
        break;
      case kAudioUnitEvent_EndParameterChangeGesture:
      case kAudioUnitEvent_PropertyChange:
        batch.push_back({&registration, end, hostTime(now)});
        break;
    }
  }
}

void Dispatcher::deliver(const Delivery& delivery, TimePoint now) {
  Registration& registration = *delivery.registration;
  UInt64 time = delivery.hostTime;
  AudioUnitParameterValue value = 0;
  if (registration.isUnitGone()) return;
  if (registration.isForValues()) {
    registration.valueState = Registration::ValueState::Quiet;
    registration.lastCallback = now;
    time = registration.valueHostTime;
    value = registration.value;
  }
  // Copies, because the callback may dispose of the listener and its registrations.
  const EventListener listener = *registration.listener;
  const AudioUnitEvent event = registration.event;
  listener.proc(listener.userData, registration.object, &event, time, value);
}

std::optional<Dispatcher::TimePoint> Dispatcher::nextDue(TimePoint now) const {
  if (mailbox_.hasChange()) return now;
  std::optional<TimePoint> next;
  for (const auto& registration : registrations_) {
    if (registration->valueState == Registration::ValueState::Quiet) continue;
    const TimePoint due = registration->valueDue().value_or(now);
    if (!next || due < *next) next = due;
  }
  return next;
}

}  // namespace audio_unit

#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Events.h"
#include "audio_unit/RunLoop.h"

/// The calls that listeners received, in order.
using Journal = std::vector<std::string>;

struct Call {
  void* object;
  AudioUnitEvent event;
  UInt64 hostTime;
  float value;
};

/// A listener that writes each call to a journal: its name, then the event.
class TestListener {
 public:
  TestListener(audio_unit::RunLoop& loop, Journal& journal, std::string name = "",
               float interval = 0.05F)
      : journal_(journal), prefix_(name.empty() ? "" : name + ": ") {
    status = AUEventListenerCreate(&TestListener::receive, this, &loop, kCFRunLoopCommonModes,
                                   interval, interval, &reference);
  }
  TestListener(const TestListener&) = delete;
  TestListener& operator=(const TestListener&) = delete;
  ~TestListener() { dispose(); }

  void listenTo(const AudioUnitEvent& event, void* object = nullptr) {
    AUEventListenerAddEventType(reference, object, &event);
  }
  void dispose() {
    if (reference) AUListenerDispose(std::exchange(reference, nullptr));
  }

  AUEventListenerRef reference = nullptr;
  OSStatus status = noErr;
  /// Called after the journal entry is written; may dispose of this listener.
  std::function<void(const Call&)> onCall;

 private:
  static void receive(void* userData, void* object, const AudioUnitEvent* event, UInt64 hostTime,
                      float value) {
    auto& self = *static_cast<TestListener*>(userData);
    self.journal_.push_back(self.prefix_ + describe(*event, value));
    if (self.onCall) self.onCall({object, *event, hostTime, value});
  }

  Journal& journal_;
  std::string prefix_;
};

/// Sets a parameter as the named sender or, as a host does, without one.
inline OSStatus set(AudioUnit unit, AudioUnitParameterID id, float value,
                    AUEventListenerRef sender = nullptr, void* object = nullptr) {
  const AudioUnitParameter parameter{unit, id, kAudioUnitScope_Global, 0};
  return AUParameterSet(sender, object, &parameter, value, 0);
}

inline OSStatus notify(const AudioUnitEvent& event, AUEventListenerRef sender = nullptr,
                       void* object = nullptr) {
  return AUEventListenerNotify(sender, object, &event);
}

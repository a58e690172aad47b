// A host without a toolkit hears of a change that another thread made: it pumps its run loop
// itself.
#include <poll.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <optional>
#include <thread>

#include "MinimalUnit.h"
#include "audio_unit/Framework.h"
#include "audio_unit/LoopPump.h"

namespace {

constexpr float kLastRate = velk::bitRates.size() - 1;

struct Heard {
  float rate = -1;
  std::atomic<bool> anything = false;
};

/// Asks for the rate as it is when the callback runs, as a view does: other threads go on
/// meanwhile.
void hear(void* userData, void* /*object*/, const AudioUnitEvent* event, UInt64 /*hostTime*/,
          AudioUnitParameterValue /*newest*/) {
  auto& heard = *static_cast<Heard*>(userData);
  AudioUnitGetParameter(event->mArgument.mParameter.mAudioUnit, velk::kConverterParam_RateQuality,
                        kAudioUnitScope_Global, 0, &heard.rate);
  heard.anything = true;
}

using Wait = std::optional<std::chrono::steady_clock::duration>;

/// Returns when there is something to deliver, or when the time has passed that the last pump gave.
void waitForEvents(const audio_unit::LoopPump& pump, const Wait& longest) {
  pollfd wakeUp{pump.descriptor(), POLLIN, 0};
  const auto milliseconds =
      longest ? std::chrono::ceil<std::chrono::milliseconds>(*longest).count() : -1;
  poll(&wakeUp, 1, static_cast<int>(milliseconds));
}

/// Goes through all rates again and again until it has been heard. Listeners hear of a change every
/// 50 ms at most, and always of the last.
void automate(const AudioUnitParameter& rate, const std::atomic<bool>& isHeard) {
  do {
    for (float index = 0; index <= kLastRate; ++index) {
      AUParameterSet(nullptr, nullptr, &rate, index, 0);
      std::this_thread::yield();
    }
  } while (!isHeard);
}

}  // namespace

int main() {
  MinimalUnit unit;
  audio_unit::LoopPump pump;  // of this thread's run loop
  Heard heard;
  AUEventListenerRef listener = nullptr;
  if (AUEventListenerCreate(hear, &heard, CFRunLoopGetCurrent(), kCFRunLoopCommonModes, 0.05F,
                            0.05F, &listener) != noErr) {
    return 1;
  }
  const AudioUnitParameter rate = {&unit, velk::kConverterParam_RateQuality, kAudioUnitScope_Global,
                                   0};
  AudioUnitEvent event{kAudioUnitEvent_ParameterValueChange, {}};
  event.mArgument.mParameter = rate;
  AUEventListenerAddEventType(listener, nullptr, &event);

  std::thread automation(automate, std::cref(rate), std::cref(heard.anything));
  for (Wait wait = pump.pump(); heard.rate != kLastRate; wait = pump.pump()) {
    waitForEvents(pump, wait);
  }
  automation.join();
  std::printf("the rate is %u kbit/s now\n", velk::bitRates[static_cast<std::size_t>(heard.rate)]);

  AUListenerDispose(listener);  // nothing arrives from here on; then the unit may go
  return 0;
}

#include "audio_unit/Unit.h"

#include "audio_unit/AUEventListener.h"
#include "audio_unit/UnitIdentity.h"

namespace audio_unit {
namespace {

UInt64 nextSerial() {
  static std::atomic<UInt64> next{1};
  return next.fetch_add(1, std::memory_order_relaxed);
}

}  // namespace

Unit::Unit() : identity_(new UnitIdentity{nextSerial()}) {}

Unit::~Unit() {
  identity_->isAlive.store(false, std::memory_order_release);
}

void Unit::announceParameter(AudioUnitParameterID id, AudioUnitScope scope,
                             AudioUnitElement element) {
  AudioUnitEvent event{kAudioUnitEvent_ParameterValueChange, {}};
  event.mArgument.mParameter = {this, id, scope, element};
  AUEventListenerNotify(nullptr, nullptr, &event);
}

void Unit::announceProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                            AudioUnitElement element) {
  AudioUnitEvent event{kAudioUnitEvent_PropertyChange, {}};
  event.mArgument.mProperty = {this, id, scope, element};
  AUEventListenerNotify(nullptr, nullptr, &event);
}

}  // namespace audio_unit

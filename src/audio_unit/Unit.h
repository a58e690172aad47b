#pragma once

#include <memory>

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/Export.h"

namespace audio_unit {

struct UnitIdentity;

/// A unit as views and hosts see it. A derived class implements the four operations. It calls
/// `announceParameter` and `announceProperty` for every change that listeners should hear of,
/// except writes through `AUParameterSet`, which announces them itself.
///
/// An operation returns `noErr`, or one of the `kAudioUnitErr_` codes and leaves its output
/// untouched. The unit decides which threads may call it; views call on the main thread.
class AUDIO_UNIT_EXPORT Unit {
 public:
  Unit();
  Unit(const Unit&) = delete;
  Unit& operator=(const Unit&) = delete;
  /// Withdraws this unit's undelivered events and all registrations for it; a listener may outlive
  /// its units. No other thread may still be using the unit, not even a callback.
  virtual ~Unit();

  /// Also called on the thread that announces a change without its value, and on the listener's
  /// thread after an overflow.
  virtual OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                AudioUnitElement element, AudioUnitParameterValue& value) = 0;
  virtual OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                AudioUnitElement element, AudioUnitParameterValue value,
                                UInt32 bufferOffsetInFrames) = 0;
  /// `size` holds the size of `data` in bytes and receives the size written.
  virtual OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                               AudioUnitElement element, void* data, UInt32& size) = 0;
  virtual OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                               AudioUnitElement element, const void* data, UInt32 size) = 0;

  /// For this library only.
  const std::shared_ptr<UnitIdentity>& identity() const { return identity_; }

 protected:
  // Announcing does not itself allocate, lock or block: any thread may do it, the audio thread too.

  /// Tells every listener that the parameter may have a new value or a new meaning. The value is
  /// read with `getParameter`; a parameter that cannot be read is not announced.
  void announceParameter(AudioUnitParameterID id, AudioUnitScope scope = kAudioUnitScope_Global,
                         AudioUnitElement element = 0);
  /// Tells every listener that the property has changed.
  void announceProperty(AudioUnitPropertyID id, AudioUnitScope scope = kAudioUnitScope_Global,
                        AudioUnitElement element = 0);

 private:
  const std::shared_ptr<UnitIdentity> identity_;
};

}  // namespace audio_unit

#pragma once

#include <memory>

#include "audio_unit/AudioUnitTypes.h"
#include "audio_unit/Export.h"

namespace audio_unit {

struct UnitIdentity;

/// A unit as views and hosts see it. Whoever writes one implements these four operations and
/// announces every change of a parameter or property that listeners should hear of and that was not
/// written through `AUParameterSet` (which announces it), by `announceParameter` and
/// `announceProperty`.
///
/// An operation returns `noErr` or one of the `kAudioUnitErr_` codes and then leaves its output
/// untouched. Which threads may call is the unit's to say; views call on the main thread.
class AUDIO_UNIT_EXPORT Unit {
 public:
  Unit();
  Unit(const Unit&) = delete;
  Unit& operator=(const Unit&) = delete;
  /// Withdraws every event of this unit that listeners have not received yet, and all that they are
  /// registered for with it; a listener may outlive its units. No other thread may be using the
  /// unit any more, a callback that uses it included.
  virtual ~Unit();

  /// Also called where a change is announced without its value, on the announcing thread, and after
  /// an overflow on the listener's thread.
  virtual OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                AudioUnitElement element, AudioUnitParameterValue& value) = 0;
  virtual OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope scope,
                                AudioUnitElement element, AudioUnitParameterValue value,
                                UInt32 bufferOffsetInFrames) = 0;
  /// `size` holds the size of `data` in bytes and becomes the size written.
  virtual OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                               AudioUnitElement element, void* data, UInt32& size) = 0;
  virtual OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope scope,
                               AudioUnitElement element, const void* data, UInt32 size) = 0;

  /// For this library's own files.
  const std::shared_ptr<UnitIdentity>& identity() const { return identity_; }

 protected:
  // Announcing never allocates, locks or blocks by itself: any thread may, the audio thread
  // included.

  /// Tells every listener that the parameter may have a new value or a new meaning. The value is
  /// read by `getParameter`; a parameter that cannot be read is not announced.
  void announceParameter(AudioUnitParameterID id, AudioUnitScope scope = kAudioUnitScope_Global,
                         AudioUnitElement element = 0);
  /// Tells every listener that the property changed.
  void announceProperty(AudioUnitPropertyID id, AudioUnitScope scope = kAudioUnitScope_Global,
                        AudioUnitElement element = 0);

 private:
  const std::shared_ptr<UnitIdentity> identity_;
};

}  // namespace audio_unit

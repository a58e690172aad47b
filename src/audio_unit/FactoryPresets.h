#pragma once

#include <memory>
#include <type_traits>

#include "audio_unit/TypedProperty.h"

namespace audio_unit {

/// A unit's list of factory presets, read when this is made and released when it goes.
class FactoryPresets {
 public:
  explicit FactoryPresets(AudioUnit unit) {
    CFArrayRef list = nullptr;
    status_ = readPropertyInto(list, unit, factoryPresetsProperty);
    if (status_ == noErr) list_.reset(list);
  }

  /// Of the reading. `noErr` does not yet mean that the unit gave a list.
  OSStatus status() const { return status_; }
  explicit operator bool() const { return list_ != nullptr; }
  /// 0 without a list.
  CFIndex count() const { return list_ ? CFArrayGetCount(list_.get()) : 0; }
  /// Null outside the list, and where the list has a null. Valid as long as the list.
  const AUPreset* at(UInt32 index) const {
    const auto place = static_cast<CFIndex>(index);
    if (place >= count()) return nullptr;
    return static_cast<const AUPreset*>(CFArrayGetValueAtIndex(list_.get(), place));
  }

 private:
  struct Release {
    void operator()(CFArrayRef list) const { CFRelease(list); }
  };

  OSStatus status_ = noErr;
  std::unique_ptr<std::remove_pointer_t<CFArrayRef>, Release> list_;
};

}  // namespace audio_unit

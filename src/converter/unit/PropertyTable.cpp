#include "converter/unit/PropertyTable.h"

#include <algorithm>

namespace converter {

OSStatus PropertyPlace::check(AudioUnitScope scope, AudioUnitElement element) const {
  const bool isOffered = isOfTheStreams
                             ? scope == kAudioUnitScope_Input || scope == kAudioUnitScope_Output
                             : scope == kAudioUnitScope_Global;
  if (!isOffered) return kAudioUnitErr_InvalidScope;
  return element < elements ? OSStatus{noErr} : kAudioUnitErr_InvalidElement;
}

OSStatus PropertyDeclaration::read(AacConverter& unit, AudioUnitScope scope,
                                   AudioUnitElement element, void* data, UInt32& size) const {
  if (const OSStatus error = place_.check(scope, element); error != noErr) return error;
  if (!isReadable()) return kAudioUnitErr_InvalidProperty;
  if (data == nullptr || size < size_) return kAudioUnitErr_InvalidPropertyValue;
  read_(unit, element, data);
  size = size_;
  return noErr;
}

OSStatus PropertyDeclaration::write(AacConverter& unit, AudioUnitScope scope,
                                    AudioUnitElement element, const void* data, UInt32 size) const {
  if (const OSStatus error = place_.check(scope, element); error != noErr) return error;
  if (!isWritable()) return kAudioUnitErr_PropertyNotWritable;
  if (data == nullptr || size != size_) return kAudioUnitErr_InvalidPropertyValue;
  return write_(unit, data);
}

const PropertyDeclaration* find(std::span<const PropertyDeclaration> declarations,
                                AudioUnitPropertyID id) {
  const auto found = std::ranges::find(declarations, id, &PropertyDeclaration::id);
  return found == declarations.end() ? nullptr : &*found;
}

}  // namespace converter

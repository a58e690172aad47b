#pragma once

#include "contract/ConverterExtensions.h"

namespace converter {

/// Whether a property may be read or written so: `noErr`, or the error that names the first thing
/// that does not fit, in the order property, scope, element, access, size. Reading takes any buffer
/// that is large enough, writing only the property's own size.
OSStatus checkRead(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                   const void* data, UInt32 size);
OSStatus checkWrite(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                    const void* data, UInt32 size);

/// Of a property's data, bytes. For a property that the unit has.
UInt32 propertySize(AudioUnitPropertyID id);

}  // namespace converter

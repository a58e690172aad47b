#pragma once

#include "audio_unit/Export.h"

/// The few Core Foundation operations that go with audio units: counted references to texts and to
/// arrays of plain pointers, and the run loop of a thread. Names, ownership and the create/release
/// rule are those of Core Foundation.

namespace audio_unit {
class CountedObject;
class Text;
class PointerArray;
class RunLoop;
}  // namespace audio_unit

using CFIndex = long;
using CFTypeRef = const audio_unit::CountedObject*;
using CFStringRef = const audio_unit::Text*;
using CFArrayRef = const audio_unit::PointerArray*;
using CFRunLoopRef = audio_unit::RunLoop*;

/// A new text with a copy of the UTF-8 characters; the caller owns one reference. Null gives null.
AUDIO_UNIT_EXPORT CFStringRef CFStringCreateWithUTF8(const char* characters);
/// The text as UTF-8, valid as long as the text is.
AUDIO_UNIT_EXPORT const char* CFStringGetUTF8Ptr(CFStringRef text);

/// A new array with copies of the pointers. What they point to is not copied and has to live as
/// long as the array; the caller owns one reference. Null for a negative count or missing values.
AUDIO_UNIT_EXPORT CFArrayRef CFArrayCreateWithPointers(const void* const* values, CFIndex count);
/// 0 for a null array.
AUDIO_UNIT_EXPORT CFIndex CFArrayGetCount(CFArrayRef array);
/// Null outside the array.
AUDIO_UNIT_EXPORT const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

/// Add and give back a reference, on any thread. Null is allowed and does nothing.
AUDIO_UNIT_EXPORT void CFRetain(CFStringRef object);
AUDIO_UNIT_EXPORT void CFRetain(CFArrayRef object);
AUDIO_UNIT_EXPORT void CFRelease(CFStringRef object);
AUDIO_UNIT_EXPORT void CFRelease(CFArrayRef object);

/// The calling thread's run loop (`audio_unit::RunLoop`), made at the first call.
AUDIO_UNIT_EXPORT CFRunLoopRef CFRunLoopGetCurrent();

/// Every mode in which a run loop of this system is pumped: there is only one set.
AUDIO_UNIT_EXPORT extern const CFStringRef kCFRunLoopCommonModes;

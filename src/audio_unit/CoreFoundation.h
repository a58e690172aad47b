#pragma once

#include "audio_unit/Export.h"

/// The few Core Foundation operations that audio units need: reference-counted strings and arrays
/// of plain pointers, and a thread's run loop. Names, ownership and the create/release rule are
/// those of Core Foundation.

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

/// Makes a string with a copy of the UTF-8 characters; the caller owns one reference. Null for
/// null characters.
AUDIO_UNIT_EXPORT CFStringRef CFStringCreateWithUTF8(const char* characters);
/// The string as UTF-8, valid as long as the string lives. Null for null.
AUDIO_UNIT_EXPORT const char* CFStringGetUTF8Ptr(CFStringRef text);

/// Makes an array with copies of the pointers; the caller owns one reference. What they point to is
/// not copied and must outlive the array. Null if `count` is negative, or positive without values.
AUDIO_UNIT_EXPORT CFArrayRef CFArrayCreateWithPointers(const void* const* values, CFIndex count);
/// 0 for a null array.
AUDIO_UNIT_EXPORT CFIndex CFArrayGetCount(CFArrayRef array);
/// Null if the index is out of range.
AUDIO_UNIT_EXPORT const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

/// Add or release a reference, on any thread. Null has no effect.
AUDIO_UNIT_EXPORT void CFRetain(CFStringRef object);
AUDIO_UNIT_EXPORT void CFRetain(CFArrayRef object);
AUDIO_UNIT_EXPORT void CFRelease(CFStringRef object);
AUDIO_UNIT_EXPORT void CFRelease(CFArrayRef object);

/// The calling thread's run loop (`audio_unit::RunLoop`), made on the first call. It is destroyed
/// when the thread ends.
AUDIO_UNIT_EXPORT CFRunLoopRef CFRunLoopGetCurrent();

/// Stands for all run loop modes. Run loops here have no modes, so it is the only value accepted.
AUDIO_UNIT_EXPORT extern const CFStringRef kCFRunLoopCommonModes;

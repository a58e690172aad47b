#include "audio_unit/CoreFoundation.h"

#include <atomic>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace audio_unit {

/// Starts with one reference; the last release destroys it.
class CountedObject {
 public:
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;
  virtual ~CountedObject() = default;

  void retain() const { references_.fetch_add(1, std::memory_order_relaxed); }
  void release() const {
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 protected:
  CountedObject() = default;

 private:
  mutable std::atomic<long> references_{1};
};

class Text final : public CountedObject {
 public:
  explicit Text(const char* characters) : utf8(characters) {}
  const std::string utf8;
};

class PointerArray final : public CountedObject {
 public:
  explicit PointerArray(std::vector<const void*> pointers) : values(std::move(pointers)) {}
  const std::vector<const void*> values;
};

}  // namespace audio_unit

namespace {

void retain(const audio_unit::CountedObject* object) {
  if (object) object->retain();
}

void release(const audio_unit::CountedObject* object) {
  if (object) object->release();
}

}  // namespace

const CFStringRef kCFRunLoopCommonModes = CFStringCreateWithUTF8("kCFRunLoopCommonModes");

CFStringRef CFStringCreateWithUTF8(const char* characters) {
  return characters ? new audio_unit::Text(characters) : nullptr;
}

const char* CFStringGetUTF8Ptr(CFStringRef text) {
  return text ? text->utf8.c_str() : nullptr;
}

CFArrayRef CFArrayCreateWithPointers(const void* const* values, CFIndex count) {
  if (count < 0 || (count > 0 && !values)) return nullptr;
  return new audio_unit::PointerArray(std::vector<const void*>(values, values + count));
}

CFIndex CFArrayGetCount(CFArrayRef array) {
  return array ? static_cast<CFIndex>(array->values.size()) : 0;
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
  if (index < 0 || index >= CFArrayGetCount(array)) return nullptr;
  return array->values[static_cast<std::size_t>(index)];
}

void CFRetain(CFStringRef object) {
  retain(object);
}
void CFRetain(CFArrayRef object) {
  retain(object);
}
void CFRelease(CFStringRef object) {
  release(object);
}
void CFRelease(CFArrayRef object) {
  release(object);
}

#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace ui::appkit {

/// Owns a reference to an object and releases it in the destructor.
template <class ObjectPointer>
class Retained {
 public:
  Retained() = default;
  explicit Retained(ObjectPointer object) : object_([object retain]) {}
  Retained(const Retained& other) : object_([other.object_ retain]) {}
  Retained(Retained&& other) noexcept : object_(std::exchange(other.object_, nil)) {}
  Retained& operator=(Retained other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Retained() { [object_ release]; }

  /// Takes over a reference that the caller owns, for example from `alloc` or `copy`.
  static Retained adopt(ObjectPointer object) {
    Retained taken;
    taken.object_ = object;
    return taken;
  }

  ObjectPointer get() const { return object_; }

 private:
  ObjectPointer object_ = nil;
};

}  // namespace ui::appkit

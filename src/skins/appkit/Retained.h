#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace ui::appkit {

/// Holds a reference to an object and gives it back when it goes.
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

  /// Takes over the reference that `alloc` or `copy` gave.
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

#pragma once

#include "ui/Export.h"

namespace ui {

/// Anything that can send an action or be the object of a notification. An action identifies its
/// sender by `dynamic_cast`.
class UI_EXPORT Object {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object();
};

}  // namespace ui

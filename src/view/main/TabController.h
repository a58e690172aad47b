#pragma once

#include "ui/Object.h"

namespace velk {

/// The controller of one page of the main view's tab view. It is live between `prepare` and
/// `cleanup`: only then does it observe notifications and run timers.
class TabController : public ui::Object {
 public:
  virtual void prepare() = 0;
  virtual void cleanup() = 0;
};

}  // namespace velk

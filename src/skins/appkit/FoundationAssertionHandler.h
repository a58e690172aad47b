#pragma once

#include "ui/AssertionHandler.h"

namespace ui::appkit {

/// Tells the thread's NSAssertionHandler. If that raises an exception, as the system's own does, it
/// goes on as an `AssertionFailure`.
class FoundationAssertionHandler final : public AssertionHandler {
 public:
  void handleFailure(const Assertion& assertion) override;
};

}  // namespace ui::appkit

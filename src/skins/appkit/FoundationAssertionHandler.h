#pragma once

#include "ui/AssertionHandler.h"

namespace ui::appkit {

/// Reports failures to the thread's NSAssertionHandler. If that raises an exception, as the
/// system's own does, this throws an `AssertionFailure`.
class FoundationAssertionHandler final : public AssertionHandler {
 public:
  void handleFailure(const Assertion& assertion) override;
};

}  // namespace ui::appkit

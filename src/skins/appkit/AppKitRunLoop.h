#pragma once

#include "ui/RunLoop.h"

namespace ui::appkit {

/// The current thread's run loop. Deferred work runs in the default, event tracking and modal panel
/// modes; these are named one by one because the common modes are not the same everywhere.
class AppKitRunLoop final : public RunLoop {
 public:
  std::unique_ptr<Timer> scheduledTimer(double interval, std::function<void()> fire) override;
  std::unique_ptr<Deferred> performLater(std::function<void()> work) override;
  /// Calls `work` once after `delay` seconds.
  std::unique_ptr<Deferred> performAfter(double delay, std::function<void()> work);
};

}  // namespace ui::appkit

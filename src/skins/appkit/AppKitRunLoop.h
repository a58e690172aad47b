#pragma once

#include "ui/RunLoop.h"

namespace ui::appkit {

/// The run loop of the thread, in the three modes that AppKit runs it in. Each is named by itself:
/// the common modes are not the same everywhere.
class AppKitRunLoop final : public RunLoop {
 public:
  std::unique_ptr<Timer> scheduledTimer(double interval, std::function<void()> fire) override;
  std::unique_ptr<Deferred> performLater(std::function<void()> work) override;
  /// Calls `work` once when that many seconds have passed.
  std::unique_ptr<Deferred> performAfter(double delay, std::function<void()> work);
};

}  // namespace ui::appkit

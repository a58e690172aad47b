#pragma once

#include "ui/RunLoop.h"

namespace ui::qt {

/// Qt's event loop. It has no modes: every timer fires in all of them.
class QtRunLoop final : public RunLoop {
 public:
  std::unique_ptr<Timer> scheduledTimer(double interval, std::function<void()> fire) override;
  std::unique_ptr<Deferred> performLater(std::function<void()> work) override;
};

}  // namespace ui::qt

#pragma once

#include <functional>
#include <memory>

#include "ui/Export.h"

namespace ui {

/// The states of a toolkit's event loop in which a timer may fire. A toolkit with one loop for all
/// of them fires every timer in any state.
enum class RunLoopMode { Default, EventTracking, ModalPanel };

/// A repeating timer. Destroying it invalidates it.
class UI_EXPORT Timer {
 public:
  virtual ~Timer();
  virtual void addToMode(RunLoopMode mode) = 0;
  /// Stops it for good. Safe inside its own callback.
  virtual void invalidate() = 0;
};

/// Work waiting for its turn. Destroying this cancels it; safe inside the work itself.
class UI_EXPORT Deferred {
 public:
  virtual ~Deferred();
};

/// The main thread's run loop. Main thread only.
class UI_EXPORT RunLoop {
 public:
  virtual ~RunLoop();
  /// Fires every `interval` seconds in the default mode.
  virtual std::unique_ptr<Timer> scheduledTimer(double interval, std::function<void()> fire) = 0;
  /// Calls `work` once on the next turn of the loop, never before this call returns.
  virtual std::unique_ptr<Deferred> performLater(std::function<void()> work) = 0;
};

}  // namespace ui

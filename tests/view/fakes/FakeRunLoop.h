#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <set>
#include <vector>

#include "ui/RunLoop.h"
#include "view/fakes/CallLog.h"

namespace fakes {

/// A run loop whose time passes only by `advance`. It also pumps the calling thread's event
/// listeners.
class FakeRunLoop final : public ui::RunLoop {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  explicit FakeRunLoop(CallLog& log);
  ~FakeRunLoop() override;

  /// Lets time pass; whatever falls due fires in order.
  void advance(std::chrono::milliseconds time);
  /// At first the default mode. Timers fire only in the modes that they were added to.
  void setMode(ui::RunLoopMode mode) { mode_ = mode; }
  TimePoint now() const { return now_; }
  int runningTimers() const;
  int waitingWork() const;

  std::unique_ptr<ui::Timer> scheduledTimer(double interval, std::function<void()> fire) override;
  std::unique_ptr<ui::Deferred> performLater(std::function<void()> work) override;

 private:
  struct TimerState;
  struct WorkState;
  class FakeTimer;
  class FakeDeferred;

  /// Does waiting work and delivers unit events. Returns when the next event is due.
  TimePoint turn(TimePoint latest);
  void fireTimersDue();

  CallLog& log_;
  TimePoint now_;
  ui::RunLoopMode mode_ = ui::RunLoopMode::Default;
  std::vector<std::shared_ptr<TimerState>> timers_;
  std::vector<std::shared_ptr<WorkState>> work_;
};

}  // namespace fakes

#include "view/fakes/FakeRunLoop.h"

#include <algorithm>
#include <utility>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/RunLoop.h"

namespace fakes {

struct FakeRunLoop::TimerState {
  std::chrono::steady_clock::duration interval;
  std::function<void()> fire;
  TimePoint due;
  std::set<ui::RunLoopMode> modes = {ui::RunLoopMode::Default};
  bool valid = true;
};

struct FakeRunLoop::WorkState {
  std::function<void()> work;
  bool cancelled = false;
};

class FakeRunLoop::FakeTimer final : public ui::Timer {
 public:
  FakeTimer(CallLog& log, std::shared_ptr<TimerState> state)
      : log_(log), state_(std::move(state)) {}
  ~FakeTimer() override { state_->valid = false; }
  void addToMode(ui::RunLoopMode mode) override {
    log_.add("timer.addToMode ", mode == ui::RunLoopMode::EventTracking ? "EventTracking"
                                 : mode == ui::RunLoopMode::ModalPanel  ? "ModalPanel"
                                                                        : "Default");
    state_->modes.insert(mode);
  }
  void invalidate() override {
    log_.add("timer.invalidate");
    state_->valid = false;
  }

 private:
  CallLog& log_;
  std::shared_ptr<TimerState> state_;
};

class FakeRunLoop::FakeDeferred final : public ui::Deferred {
 public:
  explicit FakeDeferred(std::shared_ptr<WorkState> state) : state_(std::move(state)) {}
  ~FakeDeferred() override { state_->cancelled = true; }

 private:
  std::shared_ptr<WorkState> state_;
};

FakeRunLoop::FakeRunLoop(CallLog& log) : log_(log), now_(std::chrono::steady_clock::now()) {}

FakeRunLoop::~FakeRunLoop() = default;

std::unique_ptr<ui::Timer> FakeRunLoop::scheduledTimer(double interval,
                                                       std::function<void()> fire) {
  log_.add("runLoop.scheduledTimer ", interval);
  auto state = std::make_shared<TimerState>();
  state->interval = std::chrono::duration_cast<std::chrono::steady_clock::duration>(
      std::chrono::duration<double>(interval));
  state->fire = std::move(fire);
  state->due = now_ + state->interval;
  timers_.push_back(state);
  return std::make_unique<FakeTimer>(log_, std::move(state));
}

std::unique_ptr<ui::Deferred> FakeRunLoop::performLater(std::function<void()> work) {
  log_.add("runLoop.performLater");
  auto state = std::make_shared<WorkState>();
  state->work = std::move(work);
  work_.push_back(state);
  return std::make_unique<FakeDeferred>(std::move(state));
}

int FakeRunLoop::runningTimers() const {
  return static_cast<int>(std::count_if(timers_.begin(), timers_.end(),
                                        [](const auto& timer) { return timer->valid; }));
}

int FakeRunLoop::waitingWork() const {
  return static_cast<int>(
      std::count_if(work_.begin(), work_.end(), [](const auto& work) { return !work->cancelled; }));
}

FakeRunLoop::TimePoint FakeRunLoop::turn(TimePoint latest) {
  for (const auto& work : std::exchange(work_, {})) {
    if (!work->cancelled) {
      work->work();
    }
  }
  const auto nextEvent = CFRunLoopGetCurrent()->pump(now_);
  return nextEvent ? std::max(*nextEvent, now_) : latest;
}

void FakeRunLoop::fireTimersDue() {
  std::erase_if(timers_, [](const auto& timer) { return !timer->valid; });
  // A copy, since a timer may make or end others.
  for (const auto& timer : std::vector(timers_)) {
    if (timer->valid && timer->due <= now_) {
      timer->due += timer->interval;
      if (timer->modes.contains(mode_)) {
        timer->fire();
      }
    }
  }
}

void FakeRunLoop::advance(std::chrono::milliseconds time) {
  const TimePoint end = now_ + time;
  const TimePoint never = TimePoint::max();
  TimePoint next = turn(never);
  for (;;) {
    for (const auto& timer : timers_) {
      if (timer->valid) {
        next = std::min(next, timer->due);
      }
    }
    if (next > end) {
      break;
    }
    // Events due at this instant have been delivered: the clock must move on.
    now_ = std::max(next, now_);
    fireTimersDue();
    const TimePoint nextEvent = turn(never);
    next = nextEvent <= now_ ? now_ + std::chrono::milliseconds(1) : nextEvent;
  }
  now_ = end;
}

}  // namespace fakes

#include "skins/qt/QtRunLoop.h"

#include <QTimer>
#include <cmath>
#include <utility>

#include "ui/Log.h"

namespace ui::qt {

namespace {

class RepeatingTimer final : public Timer {
 public:
  RepeatingTimer(double interval, std::function<void()> fire) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(static_cast<int>(std::lround(interval * 1000.0)));
    // Call a copy, because the work may destroy this timer.
    QObject::connect(&timer_, &QTimer::timeout,
                     [fire = std::move(fire)] { runGuarded(std::function<void()>(fire)); });
    timer_.start();
  }

  void addToMode(RunLoopMode /*mode*/) override {}
  void invalidate() override { timer_.stop(); }

 private:
  QTimer timer_;
};

class DeferredCall final : public Deferred {
 public:
  explicit DeferredCall(std::function<void()> work) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout,
                     [work = std::move(work)] { runGuarded(std::function<void()>(work)); });
    timer_.start(0);
  }

 private:
  QTimer timer_;
};

}  // namespace

std::unique_ptr<Timer> QtRunLoop::scheduledTimer(double interval, std::function<void()> fire) {
  return std::make_unique<RepeatingTimer>(interval, std::move(fire));
}

std::unique_ptr<Deferred> QtRunLoop::performLater(std::function<void()> work) {
  return std::make_unique<DeferredCall>(std::move(work));
}

}  // namespace ui::qt

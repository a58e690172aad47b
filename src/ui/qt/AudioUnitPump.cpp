#include "ui/qt/AudioUnitPump.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>
#include <cerrno>
#include <chrono>
#include <system_error>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/RunLoop.h"
#include "ui/Log.h"

namespace ui::qt {

namespace {

/// A counter that any thread may raise without waiting, and that an event loop can watch.
class EventCounter {
 public:
  EventCounter() : descriptor_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
    if (descriptor_ < 0) {
      throw std::system_error(errno, std::generic_category(), "eventfd");
    }
  }
  EventCounter(const EventCounter&) = delete;
  EventCounter& operator=(const EventCounter&) = delete;
  ~EventCounter() { ::close(descriptor_); }

  int descriptor() const { return descriptor_; }
  // A counter that cannot be raised any further has been raised: nothing is lost.
  void raise() const { static_cast<void>(::eventfd_write(descriptor_, 1)); }
  void clear() const {
    eventfd_t value = 0;
    static_cast<void>(::eventfd_read(descriptor_, &value));
  }

 private:
  int descriptor_;
};

class AudioUnitPump final : public QObject {
 public:
  explicit AudioUnitPump(QObject* parent)
      : QObject(parent),
        loop_(*CFRunLoopGetCurrent()),
        notifier_(wakeUps_.descriptor(), QSocketNotifier::Read) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&notifier_, &QSocketNotifier::activated, this, [this] {
      wakeUps_.clear();
      pump();
    });
    connect(&timer_, &QTimer::timeout, this, [this] { pump(); });
    loop_.setWakeUp([this] { wakeUps_.raise(); });
    pump();
  }
  ~AudioUnitPump() override { loop_.setWakeUp({}); }

 private:
  void pump() {
    guarded([this] {
      const auto now = audio_unit::RunLoop::TimePoint::clock::now();
      if (const auto due = loop_.pump(now)) {
        timer_.start(std::chrono::ceil<std::chrono::milliseconds>(
            *due > now ? *due - now : audio_unit::RunLoop::TimePoint::duration::zero()));
      } else {
        timer_.stop();
      }
    });
  }

  audio_unit::RunLoop& loop_;
  EventCounter wakeUps_;
  QSocketNotifier notifier_;
  QTimer timer_;
};

/// Ends the pump with the thread, if the application object lives longer. Made after the thread's
/// run loop, it goes before it.
struct EndOfThread {
  EndOfThread() = default;
  EndOfThread(const EndOfThread&) = delete;
  EndOfThread& operator=(const EndOfThread&) = delete;
  ~EndOfThread() { delete pump; }

  QPointer<AudioUnitPump> pump;
};

}  // namespace

void pumpAudioUnitEvents() {
  if (!CFRunLoopGetCurrent()->hasWakeUp()) {
    thread_local EndOfThread end;
    end.pump = new AudioUnitPump(QCoreApplication::instance());
  }
}

}  // namespace ui::qt

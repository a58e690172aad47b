#include "skins/qt/AudioUnitPump.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/LoopPump.h"
#include "audio_unit/RunLoop.h"
#include "ui/Log.h"

namespace ui::qt {

namespace {

class AudioUnitPump final : public QObject {
 public:
  explicit AudioUnitPump(QObject* parent)
      : QObject(parent), notifier_(pump_.descriptor(), QSocketNotifier::Read) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { pump(); });
    connect(&timer_, &QTimer::timeout, this, [this] { pump(); });
    pump();
  }

 private:
  void pump() {
    runGuarded([this] {
      if (const auto wait = pump_.pump()) {
        timer_.start(std::chrono::ceil<std::chrono::milliseconds>(*wait));
      } else {
        timer_.stop();
      }
    });
  }

  audio_unit::LoopPump pump_;
  QSocketNotifier notifier_;
  QTimer timer_;
};

/// Destroys the pump with the thread if the application object lives longer. It is made after the
/// thread's run loop and so destroyed before it.
struct ThreadPump {
  ThreadPump() = default;
  ThreadPump(const ThreadPump&) = delete;
  ThreadPump& operator=(const ThreadPump&) = delete;
  ~ThreadPump() { delete pump; }

  QPointer<AudioUnitPump> pump;
};

}  // namespace

void pumpAudioUnitEvents() {
  if (!CFRunLoopGetCurrent()->hasWakeUp()) {
    thread_local ThreadPump current;
    current.pump = new AudioUnitPump(QCoreApplication::instance());
  }
}

}  // namespace ui::qt

#include "skins/appkit/MainThread.h"

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>
#include <utility>

#include "skins/appkit/Clock.h"

namespace appkit_test {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

/// Whether one of the run loop's descriptors has something to say; waits that long for it.
using Look = std::function<bool(milliseconds)>;

/// Looking takes a little time. Who looks again and again until a moment has come gets there.
constexpr nanoseconds kLook = std::chrono::microseconds(20);

/// Hands the turn to and fro between the script and the main thread.
class Turns {
 public:
  // Script thread.
  void onMain(const std::function<void()>& work) {
    std::exception_ptr thrown;
    giveTurn([&] {
      NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
      try {
        work();
      } catch (...) {
        thrown = std::current_exception();
      }
      [pool drain];
      return true;
    });
    waitForTurn();
    if (thrown) {
      std::rethrow_exception(thrown);
    }
  }

  void runFor(milliseconds time, bool isReal) {
    giveTurn([=, this] {
      left_ = time;
      realSince_ = isReal ? std::optional(realTime()) : std::nullopt;
      return false;
    });
    waitForTurn();
  }

  // Main thread.
  /// The clocks are stopped, but as long as the application starts they follow the machine's.
  void start() {
    stopClocks();
    runInRealTime();
  }
  void hasStarted() { left_ = {}; }

  // Script thread.
  /// Lets the application end.
  void end() {
    giveTurn([this] {
      isEnding_ = true;
      runInRealTime();
      [NSApp stop:nil];
      // Who waits for an event looks whether to stop when there is one.
      [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                          location:NSZeroPoint
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:0
                                           context:nil
                                           subtype:0
                                             data1:0
                                             data2:0]
               atStart:NO];
      return false;
    });
  }

  // Main thread, from within whatever loop it is in, where that would wait.
  bool wait(milliseconds time, const Look& look) {
    if (realSince_) {
      passWhatHasPassed();
    }
    // In the end nobody waits any more, and every loop looks whether it should stop.
    if (look(milliseconds(0)) || isEnding_) {
      return true;
    }
    if (isServing_) {
      passTime(std::max<nanoseconds>(time, kLook));
      return false;
    }
    if (time.count() == 0) {
      if (!realSince_) {
        pass(kLook);
      }
      return false;
    }
    if (left_.count() <= 0) {
      serve();
      // There may be events now: whoever waits for them looks.
      return true;
    }
    const nanoseconds passing = std::min<nanoseconds>(time, left_);
    if (!realSince_) {
      pass(passing);
      return false;
    }
    const bool found = look(std::chrono::ceil<milliseconds>(passing));
    passWhatHasPassed();
    return found;
  }

 private:
  void runInRealTime() {
    realSince_ = realTime();
    left_ = nanoseconds::max();
  }

  void pass(nanoseconds time) {
    passTime(time);
    left_ -= time;
  }

  void passWhatHasPassed() {
    const Moment now = realTime();
    pass(now - std::exchange(*realSince_, now));
  }

  void serve() {
    isServing_ = true;
    std::unique_lock lock(mutex_);
    realSince_.reset();
    if (std::exchange(isRunning_, false)) {
      giveBack();
    }
    while (!isRunning_) {
      changed_.wait(lock, [this] { return work_.has_value(); });
      lock.unlock();
      const bool stays = (*work_)();
      lock.lock();
      isRunning_ = !stays;
      if (stays) {
        giveBack();
      }
    }
    isServing_ = false;
  }

  /// The work says whether the main thread goes on serving; else the application runs.
  void giveTurn(std::function<bool()> work) {
    const std::lock_guard lock(mutex_);
    work_ = std::move(work);
    changed_.notify_all();
  }

  void waitForTurn() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !work_.has_value(); });
  }

  void giveBack() {
    work_.reset();
    changed_.notify_all();
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<std::function<bool()>> work_;
  // Of the main thread alone.
  bool isRunning_ = false;
  bool isServing_ = false;
  /// What the application may still run for.
  nanoseconds left_{};
  /// While it runs in real time: up to when that has been let pass.
  std::optional<Moment> realSince_;
  bool isEnding_ = false;
};

Turns& turns() {
  static Turns& turns = *new Turns;
  return turns;
}

/// Stands in for the one place where a run loop waits, for its descriptors and its next timer.
class Waiting {
 public:
  Waiting() {
    Class context = NSClassFromString(@"GSRunLoopCtxt");
    Method wait = class_getInstanceMethod(context, @selector(pollUntil:within:));
    if (wait == nullptr) {
      throw std::logic_error("this toolkit's run loops wait elsewhere");
    }
    real() = reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(method_setImplementation(
        wait, reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(&standIn)))));
  }

 private:
  using Function = BOOL(id, SEL, int, NSArray*);

  static Function*& real() {
    static Function* implementation = nullptr;
    return implementation;
  }

  static BOOL standIn(id context, SEL selector, int time, NSArray* contexts) {
    const Look look = [&](milliseconds wanted) {
      return real()(context, selector, static_cast<int>(wanted.count()), contexts) == YES;
    };
    return turns().wait(milliseconds(time), look) ? YES : NO;
  }
};

}  // namespace

}  // namespace appkit_test

/// Is told when the application's own loop runs.
@interface VelkTest_Start : NSObject
- (void)applicationRuns;
@end

@implementation VelkTest_Start

- (void)applicationRuns {
  appkit_test::turns().hasStarted();
}

@end

namespace appkit_test {

int runApplication(const std::function<int()>& script) {
  int result = 1;
  turns().start();
  const Waiting waiting;
  [[[[VelkTest_Start alloc] init] autorelease] performSelector:@selector(applicationRuns)
                                                    withObject:nil
                                                    afterDelay:0];
  std::thread scriptThread([&] {
    result = script();
    turns().end();
  });
  [NSApp run];
  scriptThread.join();
  return result;
}

void onMain(const std::function<void()>& work) {
  turns().onMain(work);
}

void runFor(milliseconds time) {
  turns().runFor(time, false);
}

void runInRealTimeFor(milliseconds time) {
  turns().runFor(time, true);
}

}  // namespace appkit_test

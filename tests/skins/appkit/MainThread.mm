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

/// Polls the run loop's descriptors for at most that long. Returns whether one has an event.
using Poll = std::function<bool(milliseconds)>;

/// The time that each poll takes, so that polling repeatedly until some time also ends.
constexpr nanoseconds kPollTime = std::chrono::microseconds(20);

/// Lets the script thread and the main thread run in turns, never at once.
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
  /// Stops the clocks, but lets them follow the machine's until the application has started.
  void start() {
    stopClocks();
    runInRealTime();
  }
  void hasStarted() { left_ = {}; }

  // Script thread.
  /// Makes the application end.
  void end() {
    giveTurn([this] {
      isEnding_ = true;
      runInRealTime();
      [NSApp stop:nil];
      // The loop notices that it should stop only when it gets an event.
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

  // Main thread.
  /// Called where any run loop would wait. Returns whether that should look for events.
  bool wait(milliseconds time, const Poll& poll) {
    if (realSince_) {
      passWhatHasPassed();
    }
    // While the application ends nothing waits, so that every loop checks whether it should stop.
    if (poll(milliseconds(0)) || isEnding_) {
      return true;
    }
    if (isServing_) {
      passTime(std::max<nanoseconds>(time, kPollTime));
      return false;
    }
    if (time.count() == 0) {
      if (!realSince_) {
        pass(kPollTime);
      }
      return false;
    }
    if (left_.count() <= 0) {
      serve();
      // The script may have caused events.
      return true;
    }
    const nanoseconds passing = std::min<nanoseconds>(time, left_);
    if (!realSince_) {
      pass(passing);
      return false;
    }
    const bool found = poll(std::chrono::ceil<milliseconds>(passing));
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

  /// `work` returns whether the main thread stays with the script or lets the application run.
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
  // Main thread only.
  bool isRunning_ = false;
  bool isServing_ = false;
  /// How long the application may still run.
  nanoseconds left_{};
  /// In real time: the machine's time up to which the clocks have been advanced.
  std::optional<Moment> realSince_;
  bool isEnding_ = false;
};

Turns& turns() {
  static Turns& turns = *new Turns;
  return turns;
}

/// Replaces the one method in which GNUstep's run loops wait for descriptors and timers.
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
    const Poll poll = [&](milliseconds wanted) {
      return real()(context, selector, static_cast<int>(wanted.count()), contexts) == YES;
    };
    return turns().wait(milliseconds(time), poll) ? YES : NO;
  }
};

}  // namespace

}  // namespace appkit_test

/// Is called when the application's own loop runs.
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

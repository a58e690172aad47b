#include "appkit/MainThread.h"

#import <AppKit/AppKit.h>

#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace appkit_test {

namespace {

using Clock = std::chrono::steady_clock;

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

  void runFor(std::chrono::milliseconds time) {
    giveTurn([&] {
      runUntil_ = Clock::now() + time;
      return false;
    });
    waitForTurn();
  }

  /// Lets the application end.
  void end() {
    giveTurn([this] {
      runUntil_ = Clock::time_point::max();
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

  // Main thread, from within whatever loop it is in.
  void serve() {
    if (isServing_ || Clock::now() < runUntil_) {
      return;
    }
    isServing_ = true;
    std::unique_lock lock(mutex_);
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

 private:
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
  Clock::time_point runUntil_;
};

Turns& turns() {
  static Turns& turns = *new Turns;
  return turns;
}

}  // namespace

}  // namespace appkit_test

/// Lets the main thread serve again and again.
@interface VelkTest_Server : NSObject
- (void)serve:(id)sender;
@end

@implementation VelkTest_Server

- (void)serve:(id)sender {
  appkit_test::turns().serve();
}

@end

namespace appkit_test {

int runApplication(const std::function<int()>& script) {
  int result = 1;
  NSTimer* timer = [NSTimer timerWithTimeInterval:0.001
                                           target:[[[VelkTest_Server alloc] init] autorelease]
                                         selector:@selector(serve:)
                                         userInfo:nil
                                          repeats:YES];
  NSString* const modes[] = {NSDefaultRunLoopMode, NSEventTrackingRunLoopMode,
                             NSModalPanelRunLoopMode};
  for (NSString* mode : modes) {
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:mode];
  }
  std::thread scriptThread([&] {
    result = script();
    turns().end();
  });
  [NSApp run];
  scriptThread.join();
  [timer invalidate];
  return result;
}

void onMain(const std::function<void()>& work) {
  turns().onMain(work);
}

void runFor(std::chrono::milliseconds time) {
  turns().runFor(time);
}

}  // namespace appkit_test

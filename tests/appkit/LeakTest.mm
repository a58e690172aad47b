#include <gtest/gtest.h>
#include <malloc.h>
#import <objc/runtime.h>

#include <chrono>
#include <cstdlib>
#include <optional>

#include "appkit/Host.h"
#include "appkit/MainThread.h"
#include "fakes/FakeConverter.h"

namespace {

using namespace std::chrono_literals;

int views = 0;
IMP realDealloc = nullptr;

void countedDealloc(id view, SEL selector) {
  --views;
  reinterpret_cast<void (*)(id, SEL)>(reinterpret_cast<void (*)()>(realDealloc))(view, selector);
}

void openAndClose(fakes::FakeConverter& unit) {
  std::optional<appkit_test::Host> host;
  appkit_test::onMain([&] {
    host.emplace(&unit);
    ++views;
    appkit_test::Host::click(
        static_cast<NSButton*>(host->outlet("auditionController.showDetailsButton")));
    [static_cast<NSTabView*>(host->outlet("view.tabView")) selectTabViewItemAtIndex:1];
  });
  appkit_test::runFor(1ms);
  appkit_test::onMain([&] { host.reset(); });
  appkit_test::runFor(1ms);
}

TEST(OpeningAndClosingViews, LeavesNoneOfThemBehind) {
  appkit_test::onMain([] {
    appkit_test::bundle();
    Class view = NSClassFromString(@"Velk_View");
    ASSERT_NE(view, nil);
    Method dealloc = class_getInstanceMethod(view, @selector(dealloc));
    realDealloc = method_setImplementation(
        dealloc, reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(&countedDealloc)));
  });
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const char* wanted = std::getenv("VELK_CYCLES");
  const int cycles = wanted != nullptr ? std::atoi(wanted) : 25;
  for (int cycle = 0; cycle < cycles; ++cycle) {
    openAndClose(unit);
    calls.clear();
    ASSERT_EQ(views, 0) << "after " << cycle + 1;
  }
}

}  // namespace

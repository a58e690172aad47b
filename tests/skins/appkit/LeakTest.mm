#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <malloc.h>
#import <objc/runtime.h>

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "skins/appkit/Host.h"
#include "skins/appkit/MainThread.h"
#include "view/fakes/FakeConverter.h"

// The toolkit's own count of its objects. Its header does not compile as standard C++.
extern "C" {
BOOL GSDebugAllocationActive(BOOL active);
const char* GSDebugAllocationList(BOOL sinceLastList);
}

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
  });
  appkit_test::runFor(1ms);
  appkit_test::onMain(
      [&] { [static_cast<NSTabView*>(host->outlet("view.tabView")) selectTabViewItemAtIndex:1]; });
  appkit_test::runFor(1ms);
  appkit_test::onMain([&] { host.reset(); });
  appkit_test::runFor(1ms);
}

void openAndClose(fakes::FakeConverter& unit, int cycles) {
  for (int cycle = 0; cycle < cycles; ++cycle) {
    openAndClose(unit);
    unit.log().clear();
    ASSERT_EQ(views, 0) << "after " << cycle + 1;
  }
}

/// A mode of the run loop keeps invalidated timers until the loop checks that mode.
void checkEveryMode() {
  for (NSString* mode :
       {NSDefaultRunLoopMode, NSEventTrackingRunLoopMode, NSModalPanelRunLoopMode}) {
    [[NSRunLoop currentRunLoop] limitDateForMode:mode];
  }
}

/// The classes of which there are at least that many more objects than at the last call.
std::vector<std::string> listGrownClasses(int least) {
  std::vector<std::string> classes;
  std::istringstream list(GSDebugAllocationList(YES));
  int more = 0;
  for (std::string name; list >> more >> name;) {
    if (more >= least) {
      classes.push_back(name);
    }
  }
  return classes;
}

double bytesInUse() {
  return static_cast<double>(mallinfo2().uordblks);
}

/// The memory that the toolkit uses for the interface file when it reads it.
double bytesOfInterfaceFile() {
  NSString* file = [appkit_test::bundle() pathForResource:@"Velk_NordaAACConverter" ofType:@"xib"];
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  const double before = bytesInUse();
  NSXMLDocument* document = [[NSXMLDocument alloc] initWithData:[NSData dataWithContentsOfFile:file]
                                                        options:0
                                                          error:nullptr];
  const double bytes = bytesInUse() - before;
  EXPECT_NE(document, nil);
  [document release];
  [pool drain];
  return bytes;
}

TEST(OpeningAndClosingViews, LeaksNone) {
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
  // The first few views fill the toolkit's caches.
  constexpr int kFirst = 5;
  constexpr int kCycles = 40;
  appkit_test::onMain([] { GSDebugAllocationActive(YES); });
  openAndClose(unit, kFirst);
  double before = 0;
  appkit_test::onMain([&] {
    checkEveryMode();
    listGrownClasses(0);
    before = bytesInUse();
  });
  openAndClose(unit, kCycles);
  appkit_test::onMain([&] {
    checkEveryMode();
    const double kept = (bytesInUse() - before) / kCycles;
    // GNUstep leaks the document of each interface file that it reads, and a few small objects.
    EXPECT_THAT(listGrownClasses(kCycles / 2),
                testing::IsSubsetOf(
                    {"GSCBufferString", "GSDictionary", "GSMutableArray", "GSMutableDictionary",
                     "GSXibElement", "NSMutableParagraphStyle", "NSXMLDocument",
                     "NSXMLDocumentInternal", "NSXMLElement", "NSXMLElementInternal"}));
    bytesOfInterfaceFile();
    const double file = bytesOfInterfaceFile();
    std::printf("%.0f bytes kept of each of %d views; the file takes %.0f\n", kept, kCycles, file);
    // With a sanitizer this measures nothing; its leak checker does.
    EXPECT_LE(kept, file);
    GSDebugAllocationActive(NO);
  });
}

}  // namespace

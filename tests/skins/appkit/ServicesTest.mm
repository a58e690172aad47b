#import <AppKit/AppKit.h>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "skins/appkit/AppKitRunLoop.h"
#include "skins/appkit/Clock.h"
#include "skins/appkit/FoundationAssertionHandler.h"
#include "skins/appkit/FoundationBundle.h"
#include "skins/appkit/FoundationLocalization.h"
#include "skins/appkit/FoundationNotificationCenter.h"
#include "skins/appkit/FoundationTextFile.h"
#include "skins/appkit/LevelFormatter.h"
#include "skins/appkit/MainThread.h"
#include "skins/appkit/Strings.h"
#include "ui/AssertionHandler.h"
#include "ui/Bundle.h"
#include "ui/TextFile.h"
#include "view/fakes/LogCapture.h"
#include "view/listening_test/ResultsText.h"
#include "view/listening_test/TestTexts.h"

namespace {

using appkit_test::onMain;
using ui::appkit::utf8;
using namespace std::chrono_literals;

/// 2023-11-14, 22:13:20 UTC.
constexpr std::chrono::system_clock::time_point kMoment{1700000000s};

std::string contentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::filesystem::path temporary(const char* name) {
  return std::filesystem::temp_directory_path() / (std::to_string(getpid()) + name);
}

/// The locale that the program was started with.
std::string userLocale() {
  const char* name = std::getenv("VELK_LOCALE");
  return name != nullptr ? name : "en_US";
}

TEST(Localization, WritesWhatIcuWrites) {
  onMain([] {
    const ui::appkit::FoundationLocalization foundation;
    const auto icu = ui::makeLocalization(userLocale());
    for (const std::int64_t value : {0L, 7L, 1234L, 1234567L, -5L}) {
      EXPECT_EQ(foundation.plain(value), icu->plain(value));
    }
    for (const double share : {0.0, 0.05, 0.85, 0.5, 1.0}) {
      EXPECT_EQ(foundation.percent(share), icu->percent(share));
    }
    for (const double level : {-60.0, -0.1, -0.04, 0.0, 0.04, 1.25, 12.0, -3.06}) {
      EXPECT_EQ(foundation.oneDecimal(level), icu->oneDecimal(level)) << level;
    }
    EXPECT_EQ(foundation.longDateShortTime(kMoment), icu->longDateShortTime(kMoment));
  });
}

TEST(ResultsFile, IsTheSameByteForByteThroughFoundationAndThroughIcu) {
  onMain([] {
    const ui::appkit::FoundationLocalization foundation;
    const auto icu = ui::makeLocalization(userLocale());
    NSBundle* native = [NSBundle bundleWithPath:ui::appkit::nsString(VELK_BUNDLE)];
    const ui::appkit::FoundationBundle nativeBundle(native);
    const ui::Bundle bundle(VELK_RESOURCES, {userLocale().substr(0, 2)});
    EXPECT_EQ(nativeBundle.language(), bundle.language());
    const auto write = [](const ui::Bundle& texts, const ui::Localization& localization,
                          auto&& writeMacRoman, const char* name) {
      const velk::TestResults results = {localization.longDateShortTime(kMoment),
                                         "AAC VBRC 256 Kbps \u2013 \u00E4\u00F6\u00FC\u00E9\u00E8",
                                         21, 13};
      const std::filesystem::path file = temporary(name);
      EXPECT_TRUE(
          writeMacRoman(file, velk::resultsText(results, velk::TestTexts(texts, localization))));
      const std::string content = contentOf(file);
      std::filesystem::remove(file);
      return content;
    };
    const std::string one = write(nativeBundle, foundation, ui::appkit::writeMacRoman, "f.txt");
    const std::string other = write(bundle, *icu, ui::writeMacRoman, "i.txt");
    EXPECT_THAT(one, testing::HasSubstr("13/20"));
    EXPECT_EQ(one, other);
  });
}

TEST(TextFile, RefusesWhatMacRomanLacksAndKeepsTheOldFile) {
  onMain([] {
    const std::filesystem::path file = temporary("kept.txt");
    ASSERT_TRUE(ui::appkit::writeMacRoman(file, "kept"));
    EXPECT_FALSE(ui::appkit::writeMacRoman(file, "\u4E2D"));
    EXPECT_FALSE(ui::appkit::writeMacRoman(file, "\xFF"));
    EXPECT_EQ(contentOf(file), "kept");
    EXPECT_FALSE(ui::appkit::writeMacRoman("/nowhere/at/all.txt", "text"));
    std::filesystem::remove(file);
  });
}

TEST(Bundle, FindsItsTextsThroughFoundation) {
  onMain([] {
    const ui::appkit::FoundationBundle bundle(
        [NSBundle bundleWithPath:ui::appkit::nsString(VELK_BUNDLE)]);
    EXPECT_EQ(bundle.language(), "en");
    EXPECT_EQ(bundle.localizedString("%@ %@ %@ Kbps", "AUDravoAACStrings"), "%@ %@ %@ Kbps");
    EXPECT_EQ(bundle.localizedString("Custom\u2026", "AUDravoAACStrings"), "Custom\u2026");
    EXPECT_EQ(bundle.localizedString("No such text", "AUDravoAACStrings"), "No such text");
    EXPECT_EQ(bundle.localizedString("No such text", "NoSuchTable"), "No such text");
  });
}

TEST(AssertionHandler, TurnsTheSystemsExceptionIntoAnAssertionFailure) {
  onMain([] {
    ui::appkit::FoundationAssertionHandler handler;
    try {
      handler.handleFailure(
          {"getParameterValue:", nullptr, "AACConverter/File", 7, "no 100%@ luck"});
      ADD_FAILURE() << "nothing was thrown";
    } catch (const ui::AssertionFailure& failure) {
      EXPECT_EQ(failure.assertion().line, 7);
      EXPECT_EQ(failure.assertion().description, "no 100%@ luck");
    }
  });
}

TEST(NotificationCenter, DeliversByNameAndObjectUntilTheObserverIsRemoved) {
  onMain([] {
    ui::appkit::FoundationNotificationCenter center;
    const int object = 0;
    const int other = 0;
    std::vector<std::string> heard;
    center.addObserver(&heard, "one", &object, [&](const ui::Notification& notification) {
      EXPECT_EQ(notification.object, &object);
      heard.emplace_back(notification.name);
    });
    center.addObserver(&heard, "two", nullptr,
                       [&](const ui::Notification&) { heard.emplace_back("any"); });
    center.post("one", &other);
    center.post("one", &object);
    center.post("two", &other);
    EXPECT_THAT(heard, testing::ElementsAre("one", "any"));
    center.removeObserver(&heard);
    center.post("one", &object);
    EXPECT_EQ(heard.size(), 2U);
  });
}

TEST(NotificationCenter, LetsAnExceptionOfAnObserverReachWhoeverPosted) {
  onMain([] {
    ui::appkit::FoundationNotificationCenter center;
    int calls = 0;
    const auto fail = [&](const ui::Notification&) {
      ++calls;
      throw std::runtime_error("observer");
    };
    center.addObserver(&calls, "one", nullptr, fail);
    center.addObserver(&calls, "one", nullptr, fail);
    EXPECT_THROW(center.post("one", &calls), std::runtime_error);
    EXPECT_EQ(calls, 1);
    center.removeObserver(&calls);
    center.post("one", &calls);
    EXPECT_EQ(calls, 1);
  });
}

TEST(NotificationCenter, LogsAnExceptionWhenAHostPostsWithoutIt) {
  onMain([] {
    fakes::CallLog calls;
    const fakes::LogCapture log(calls);
    ui::appkit::FoundationNotificationCenter center;
    int heard = 0;
    center.addObserver(&heard, "one", nullptr, [&](const ui::Notification&) {
      ++heard;
      throw std::runtime_error("observer");
    });
    [[NSNotificationCenter defaultCenter] postNotificationName:@"one" object:nil];
    EXPECT_THAT(log.lines(), testing::ElementsAre(testing::HasSubstr("observer")));
    // The observer still gets later notifications.
    [[NSNotificationCenter defaultCenter] postNotificationName:@"one" object:nil];
    EXPECT_THROW(center.post("one", &heard), std::runtime_error);
    EXPECT_EQ(heard, 3);
    center.removeObserver(&heard);
  });
}

TEST(Boundary, CatchesAnExceptionOfFoundation) {
  onMain([] {
    fakes::CallLog calls;
    const fakes::LogCapture log(calls);
    ui::runGuarded([] { [NSException raise:NSGenericException format:@"no luck"]; });
    EXPECT_EQ(log.lines().size(), 1U);
  });
}

TEST(LevelFormatter, ShowsThePlainNumberIfFormattingFails) {
  class NoText final : public ui::appkit::LevelText {
   public:
    std::string text(double /*level*/) const override { throw std::runtime_error("no text"); }
  };
  onMain([] {
    fakes::CallLog calls;
    const fakes::LogCapture log(calls);
    const NoText noText;
    Velk_LevelFormatter* formatter = [[[Velk_LevelFormatter alloc] init] autorelease];
    [formatter setLevelText:&noText];
    EXPECT_EQ(utf8([formatter stringForObjectValue:[NSNumber numberWithInt:-3]]), "-3");
    EXPECT_THAT(log.lines(), testing::ElementsAre(testing::HasSubstr("no text")));
  });
}

TEST(RunLoop, FiresATimerRepeatedlyAndDoesDeferredWorkOnce) {
  ui::appkit::AppKitRunLoop loop;
  std::unique_ptr<ui::Timer> timer;
  std::unique_ptr<ui::Deferred> later;
  std::unique_ptr<ui::Deferred> cancelled;
  int fired = 0;
  int performed = 0;
  onMain([&] {
    timer = loop.scheduledTimer(0.01, [&] {
      if (++fired == 3) {
        timer->invalidate();
      }
    });
    later = loop.performLater([&] {
      ++performed;
      later.reset();
    });
    cancelled = loop.performLater([&] { performed += 100; });
    cancelled.reset();
    EXPECT_EQ(performed, 0);
  });
  appkit_test::runFor(200ms);
  onMain([&] { timer.reset(); });
  EXPECT_EQ(fired, 3);
  EXPECT_EQ(performed, 1);
}

TEST(RunLoop, FiresATimerInTheModesThatItWasAddedTo) {
  onMain([] {
    ui::appkit::AppKitRunLoop loop;
    int fired = 0;
    const auto timer = loop.scheduledTimer(0.005, [&] { ++fired; });
    const auto runIn = [](NSString* mode) {
      NSDate* end = [NSDate dateWithTimeIntervalSinceNow:0.05];
      while ([end timeIntervalSinceNow] > 0) {
        [[NSRunLoop currentRunLoop] runMode:mode beforeDate:end];
      }
    };
    runIn(NSModalPanelRunLoopMode);
    EXPECT_EQ(fired, 0);
    timer->addToMode(ui::RunLoopMode::ModalPanel);
    runIn(NSModalPanelRunLoopMode);
    EXPECT_GT(fired, 0);
  });
}

/// All other tests control the clocks. Here real time passes, as it does for users.
TEST(RunLoop, FiresATimerInEveryModeAsRealTimePasses) {
  for (NSString* mode :
       {NSDefaultRunLoopMode, NSEventTrackingRunLoopMode, NSModalPanelRunLoopMode}) {
    ui::appkit::AppKitRunLoop loop;
    std::unique_ptr<ui::Timer> timer;
    std::unique_ptr<ui::Deferred> inMode;
    std::vector<appkit_test::Moment> fired;
    const auto start = appkit_test::realTime();
    onMain([&] {
      timer = loop.scheduledTimer(0.01, [&] { fired.push_back(appkit_test::realTime()); });
      timer->addToMode(ui::RunLoopMode::EventTracking);
      timer->addToMode(ui::RunLoopMode::ModalPanel);
      inMode = loop.performLater([&] {
        while (fired.size() < 5) {
          [[NSRunLoop currentRunLoop] runMode:mode
                                   beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
      });
    });
    while (fired.size() < 5 && appkit_test::realTime() - start < 20s) {
      appkit_test::runInRealTimeFor(10ms);
    }
    onMain([&] { timer.reset(); });
    ASSERT_GE(fired.size(), 5U) << utf8(mode);
    // The fifth time, allowing for rounding by a clock.
    EXPECT_GE(fired[4] - start, 48ms) << utf8(mode);
  }
}

}  // namespace

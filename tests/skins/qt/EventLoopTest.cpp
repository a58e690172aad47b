#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <thread>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/RunLoop.h"
#include "contract/ConverterInterface.h"
#include "skins/qt/AudioUnitPump.h"
#include "skins/qt/Environment.h"
#include "skins/qt/QtHelpManager.h"
#include "skins/qt/QtRunLoop.h"
#include "ui/Bundle.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/LogCapture.h"

namespace {

using testing::ElementsAre;

/// Runs Qt's event loop for at most ten seconds. Returns whether the condition then holds.
template <class Condition>
bool turnUntil(Condition condition) {
  return QTest::qWaitFor(condition, 10000);
}

TEST(QtRunLoop, FiresATimerAgainAndAgainUntilItIsInvalidated) {
  ui::qt::QtRunLoop loop;
  int fired = 0;
  std::unique_ptr<ui::Timer> timer;
  timer = loop.scheduledTimer(0.001, [&] {
    if (++fired == 3) {
      timer->invalidate();
    }
  });
  timer->addToMode(ui::RunLoopMode::ModalPanel);
  ASSERT_TRUE(turnUntil([&] { return fired == 3; }));
  const auto later = loop.performLater([&] { fired += 100; });
  ASSERT_TRUE(turnUntil([&] { return fired >= 100; }));
  EXPECT_EQ(fired, 103);
}

TEST(QtRunLoop, LetsATimerDestroyItselfInItsOwnCallback) {
  ui::qt::QtRunLoop loop;
  bool fired = false;
  std::unique_ptr<ui::Timer> timer;
  timer = loop.scheduledTimer(0.001, [&] {
    timer.reset();
    fired = true;
  });
  EXPECT_TRUE(turnUntil([&] { return fired; }));
}

TEST(QtRunLoop, DoesDeferredWorkOnceAndNotImmediately) {
  ui::qt::QtRunLoop loop;
  int done = 0;
  const auto work = loop.performLater([&] { ++done; });
  EXPECT_EQ(done, 0);
  ASSERT_TRUE(turnUntil([&] { return done > 0; }));
  QApplication::processEvents();
  EXPECT_EQ(done, 1);
}

TEST(QtRunLoop, ForgetsCancelledWork) {
  ui::qt::QtRunLoop loop;
  bool done = false;
  bool other = false;
  auto work = loop.performLater([&] { done = true; });
  const auto later = loop.performLater([&] { other = true; });
  work.reset();
  ASSERT_TRUE(turnUntil([&] { return other; }));
  EXPECT_FALSE(done);
}

TEST(QtRunLoop, LogsWhatItsWorkThrows) {
  fakes::CallLog calls;
  const fakes::LogCapture log(calls);
  ui::qt::QtRunLoop loop;
  const auto work = loop.performLater([] { throw std::runtime_error("the work failed"); });
  ASSERT_TRUE(turnUntil([&] { return !log.lines().empty(); }));
  EXPECT_THAT(log.lines(), ElementsAre(testing::HasSubstr("the work failed")));
}

/// Listens, on the main thread, to one property of a unit.
class Listener {
 public:
  explicit Listener(audio_unit::Unit& unit) {
    AUEventListenerCreate(
        [](void* self, void*, const AudioUnitEvent*, UInt64, AudioUnitParameterValue) {
          ++static_cast<Listener*>(self)->received_;
        },
        this, CFRunLoopGetCurrent(), kCFRunLoopCommonModes, 0.05F, 0.05F, &listener_);
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_PropertyChange;
    event.mArgument.mProperty = {&unit, velk::kConverterProperty_MonitorSource,
                                 kAudioUnitScope_Global, 0};
    AUEventListenerAddEventType(listener_, this, &event);
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener() { AUListenerDispose(listener_); }
  int received() const { return received_; }

 private:
  AUEventListenerRef listener_ = nullptr;
  int received_ = 0;
};

TEST(AudioUnitPump, DeliversEventsFromAnyThreadOnTheMainThread) {
  ui::qt::pumpAudioUnitEvents();
  EXPECT_TRUE(CFRunLoopGetCurrent()->hasWakeUp());
  ui::qt::pumpAudioUnitEvents();
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const Listener listener(unit);
  std::thread([&] { unit.announceChangeOf(velk::kConverterProperty_MonitorSource); }).join();
  EXPECT_EQ(listener.received(), 0);
  EXPECT_TRUE(turnUntil([&] { return listener.received() == 1; }));
}

TEST(AudioUnitPump, LeavesARunLoopAloneThatIsAlreadyPumped) {
  int woken = 0;
  CFRunLoopGetCurrent()->setWakeUp([&] { ++woken; });
  ui::qt::pumpAudioUnitEvents();
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const Listener listener(unit);
  unit.announceChangeOf(velk::kConverterProperty_MonitorSource);
  QApplication::processEvents();
  EXPECT_EQ(woken, 1);
  EXPECT_EQ(listener.received(), 0);
  CFRunLoopGetCurrent()->setWakeUp({});
}

TEST(Languages, AreTakenFromLocaleNames) {
  EXPECT_THAT(ui::qt::languageCodes({"de-CH", "de", "fr_FR", "C", "en-Latn-US"}),
              ElementsAre("de", "fr", "C", "en"));
  EXPECT_THAT(ui::qt::languageCodes({}), ElementsAre());
}

class Help : public testing::Test {
 protected:
  ui::qt::QtHelpManager manager(const ui::Bundle& bundle) {
    return {bundle, [this](const QUrl& url) {
              opened_.push_back(url);
              return opens_;
            }};
  }

  std::vector<QUrl> opened_;
  bool opens_ = true;
};

TEST_F(Help, OpensThePageOfTheBundleAtTheAnchor) {
  const ui::Bundle bundle(VELK_BUNDLE_RESOURCES, {"en"});
  manager(bundle).openHelpAnchor("audition", "book");
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_TRUE(opened_[0].isLocalFile());
  EXPECT_EQ(opened_[0].toLocalFile().toStdString(),
            std::string(VELK_BUNDLE_RESOURCES) + "/help/index.html");
  EXPECT_EQ(opened_[0].fragment(), "audition");
}

TEST_F(Help, PrefersThePageInTheUsersLanguage) {
  const ui::Bundle bundle(VELK_BUNDLE_RESOURCES, {"de"});
  manager(bundle).openHelpAnchor("listening-test", "book");
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_TRUE(opened_[0].toLocalFile().endsWith("/help/index.de.html"));
}

TEST_F(Help, LogsAPageThatCannotBeShown) {
  fakes::CallLog calls;
  const fakes::LogCapture log(calls);
  const ui::Bundle bundle(VELK_BUNDLE_RESOURCES, {"en"});
  opens_ = false;
  manager(bundle).openHelpAnchor("audition", "book");
  EXPECT_THAT(log.lines(), ElementsAre(testing::HasSubstr("index.html")));
}

}  // namespace

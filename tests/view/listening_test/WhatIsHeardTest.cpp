#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

#include "view/listening_test/TestPage.h"

namespace listening_test {
namespace {

using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;
using velk::kConverterProperty_MonitorSource;

constexpr std::uint16_t kKeyA = 0;
constexpr std::uint16_t kKeyS = 1;
constexpr std::uint16_t kKeyB = 11;

TEST(ListeningTest, PlaysTheSourceAfterItSwitchedAAndBOff) {
  TestPage page;
  page.click("sourceButton");
  EXPECT_THAT(page.happened(),
              ElementsAre("aButton.setState 0", "bButton.setState 0", "unit.setProperty 5301 = 1"));
}

TEST(ListeningTest, PlaysWhatWasDrawnForAAndTheOtherOneForB) {
  for (const bool aIsSource : {true, false}) {
    for (const bool clicksA : {true, false}) {
      TestPage page;
      page.restart(aIsSource);
      page.click(clicksA ? "aButton" : "bButton");
      const char* const first = clicksA ? "sourceButton.setState 0" : "aButton.setState 0";
      const char* const second = clicksA ? "bButton.setState 0" : "sourceButton.setState 0";
      const bool source = clicksA == aIsSource;
      EXPECT_THAT(page.happened(),
                  ElementsAre(first, second,
                              source ? "unit.setProperty 5301 = 1" : "unit.setProperty 5301 = 0"));
    }
  }
}

TEST(ListeningTest, MakesAnEvenNumberMeanThatAIsTheSource) {
  TestPage page;
  for (unsigned seed = 1; seed < 50; ++seed) {
    ui::Window alert;
    std::srand(seed);
    const bool even = std::rand() % 2 == 0;
    std::srand(seed);
    page.controller().endTest(&alert);
    page.controller().monitorA(nullptr);
    EXPECT_EQ(page.unit.monitorSource, even ? 1U : 0U) << seed;
  }
}

TEST(ListeningTest, ClicksAMonitorButtonForItsKeyUnlessItIsOn) {
  struct Case {
    std::uint16_t key;
    const char* button;
  };
  for (const auto& [key, button] :
       {Case{kKeyS, "sourceButton"}, Case{kKeyA, "aButton"}, Case{kKeyB, "bButton"}}) {
    TestPage page;
    page.view->native->pressKey(key);
    EXPECT_EQ(page.button(button).state(), 1) << button;
    EXPECT_EQ(page.record.calls.count("unit.setProperty 5301"), 1U) << button;
    page.record.calls.clear();
    page.view->native->pressKey(key);
    EXPECT_THAT(page.happened(), IsEmpty()) << button;
    EXPECT_EQ(page.button(button).state(), 1) << button;
  }
}

TEST(ListeningTest, StillPlaysTheSourceWhenItsButtonIsClickedOff) {
  TestPage page;
  page.click("sourceButton");
  page.record.calls.clear();
  page.click("sourceButton");
  EXPECT_EQ(page.button("sourceButton").state(), 0);
  EXPECT_EQ(page.record.calls.count("unit.setProperty 5301 = 1"), 1U);
}

TEST(ListeningTest, LeavesMonitorButtonsAndWhatIsHeardAsTheyAreWhenItEnds) {
  TestPage page;
  page.restart(false);
  page.click("aButton");
  page.endTest();
  EXPECT_EQ(page.button("aButton").state(), 1);
  EXPECT_EQ(page.unit.monitorSource, 0U);
}

TEST(ListeningTest, GoesOnWhenTheUnitRefusesToSwitchWhatIsHeard) {
  TestPage page;
  page.unit.failAlways(UnitCall::SetProperty, kConverterProperty_MonitorSource, -2);
  page.click("aButton");
  page.answer(true);
  EXPECT_EQ(page.text("cycleLabel"), "Test Cycle: 2 of 20");
  EXPECT_THAT(page.record.log.lines(),
              testing::Each("There was an error changing the source to monitor: -2"));
}

}  // namespace
}  // namespace listening_test

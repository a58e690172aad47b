#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "view/audition/AuditionPage.h"
#include "view/audition/MeterRow.h"

namespace audition_test {
namespace {

using fakes::FakeButton;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;
using velk::kConverterProperty_ResetPeakStats;

constexpr std::uint16_t kDeleteKey = 51;

const std::vector<std::string> kLampsDark = {"sourceClipIndicator.setIntValue 0",
                                             "encoderClipIndicator.setIntValue 0"};

/// Readings that are cleared together, then the counters.
std::vector<std::string> clearedControls(const std::vector<std::vector<std::string>>& measures,
                                         const std::vector<std::string>& counters) {
  std::vector<std::string> lines = kLampsDark;
  const auto add = [&lines](const std::vector<std::string>& names, const std::string& rest) {
    for (const std::string& name : names) {
      lines.push_back(name + rest);
    }
  };
  for (const auto& measure : measures) {
    add(measure, "Field.setFloatValue -60");
    add(measure, "Indicator.setIntValue 0");
    add(measure, "Field.setTextColor 0 0 0 1");
  }
  add(counters, "Field.setIntegerValue 0");
  add(counters, "Field.setTextColor 0 0 0 1");
  return lines;
}

std::vector<std::string> clearedStereo() {
  return clearedControls({{"ssl", "ssr"}, {"sil", "sir"}, {"esl", "esr"}, {"eil", "eir"}},
                         {"sslc", "ssrc", "silc", "sirc", "eslc", "esrc", "eilc", "eirc"});
}

std::vector<std::string> clearedMono() {
  return clearedControls({{"ssm"}, {"sim"}, {"esm"}, {"eim"}}, {"ssmc", "simc", "esmc", "eimc"});
}

TEST(MeterReset, ClearsTheStereoReadingsInTheirOrderAndLeavesTheMonoOnesAlone) {
  AuditionPage page;
  page.control<FakeButton>("resetButton").userClicks();
  EXPECT_THAT(page.writes(), ElementsAreArray(clearedStereo()));
}

TEST(MeterReset, ClearsTheMonoReadingsInTheirOrderAndLeavesTheStereoOnesAlone) {
  for (const UInt32 channels : {1U, 6U}) {
    AuditionPage page(channels);
    page.control<FakeButton>("resetButton").userClicks();
    EXPECT_THAT(page.writes(), ElementsAreArray(clearedMono())) << channels << " channels";
  }
}

TEST(MeterReset, AsksTheUnitOnceBeforeItTouchesAControl) {
  AuditionPage page;
  page.control<FakeButton>("resetButton").userClicks();
  ASSERT_THAT(page.record.calls.lines(), testing::Not(IsEmpty()));
  EXPECT_EQ(page.record.calls.lines().front(), "unit.setProperty 5303 = 1");
  EXPECT_EQ(page.record.calls.count("unit."), 1U);
}

TEST(MeterReset, ClearsOnTheDeleteKeyAsOnTheButton) {
  AuditionPage page;
  page.view->native->pressKey(kDeleteKey);
  EXPECT_THAT(page.record.calls.starting("unit."), ElementsAre("unit.setProperty 5303 = 1"));
  EXPECT_THAT(page.writes(), ElementsAreArray(clearedStereo()));
}

TEST(MeterReset, ClearsOnceWhenTheUnitAnnouncesTheReset) {
  AuditionPage page;
  page.control<FakeButton>("resetButton").userClicks();
  page.advance(60);
  EXPECT_THAT(page.writes(), ElementsAreArray(clearedStereo()));
}

TEST(MeterReset, ShowsTheSameFiguresOnceMoreAfterwards) {
  AuditionPage page;
  page.unit.statistics.fill({1.0F, 2.0F, 5, 6});
  page.poll();
  const std::vector<std::string> shown = page.writes();
  EXPECT_THAT(shown, SizeIs(2 + 8 * 3 + 8 * 2));
  page.control<FakeButton>("resetButton").userClicks();
  page.record.calls.clear();
  page.unit.statistics.fill({1.0F, 2.0F, 5, 6});
  page.poll();
  EXPECT_EQ(page.writes(), shown);
}

TEST(MeterReset, ClearsThePageAllTheSameWhenTheUnitRefusesAndRefillsItAtTheNextPoll) {
  AuditionPage page;
  page.unit.statistics.fill({1.0F, 2.0F, 5, 6});
  page.poll();
  const std::vector<std::string> shown = page.writes();
  page.record.calls.clear();
  page.unit.failAlways(UnitCall::SetProperty, kConverterProperty_ResetPeakStats, -66);
  page.control<FakeButton>("resetButton").userClicks();
  EXPECT_THAT(page.record.log.lines(),
              ElementsAre("Unable to reset clipping and peak data- error from AU: -66"));
  EXPECT_THAT(page.writes(), ElementsAreArray(clearedStereo()));
  page.record.calls.clear();
  page.poll();
  EXPECT_EQ(page.writes(), shown);
}

TEST(MeterReset, TakesBackTheHeldValuesOfBothSets) {
  AuditionPage page;
  page.unit.statistics.fill({1.0F, 2.0F, 5, 6});
  page.poll();
  fakes::FakeConverter mono(page.record.calls);
  mono.channels = 1;
  page.view->view().setAU(&mono);
  page.control<FakeButton>("resetButton").userClicks();
  page.view->view().setAU(&page.unit);
  page.record.calls.clear();
  page.poll();
  // The lamps were darkened and the held values are gone, so everything is written again.
  EXPECT_THAT(page.writes(), SizeIs(2 + 8 * 3 + 8 * 2));
  page.view.reset();
}

}  // namespace
}  // namespace audition_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "view/audition/AuditionPage.h"
#include "view/audition/MeterRow.h"

namespace audition_test {
namespace {

using fakes::FakeLevelIndicator;
using fakes::FakeTextField;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using velk::kConverterProperty_PeakStats;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

struct Layout {
  UInt32 channels;
  const std::vector<MeterRow>& rows;
};

std::vector<Layout> layouts() {
  return {{2, kStereoRows}, {1, kMonoRows}, {6, kMonoRows}};
}

std::string lampOf(const MeterRow& row) {
  return row.isEncoded() ? "encoderClipIndicator.setIntValue 2"
                         : "sourceClipIndicator.setIntValue 2";
}

TEST(MeterPoll, ShowsAPeakInItsOwnFieldAlone) {
  for (const auto& [channels, rows] : layouts()) {
    for (const MeterRow& row : rows) {
      if (!row.isCounter()) {
        AuditionPage page(channels);
        row.setPeak(page.unit.statistics, -3.5F);
        page.poll();
        EXPECT_THAT(page.writes(), ElementsAre(row.name + "Field.setFloatValue -3.5"))
            << channels << " channels, " << row.name;
      }
    }
  }
}

TEST(MeterPoll, ShowsAPeakAboveFullScaleByItsOwnFieldLampAndColourAlone) {
  for (const auto& [channels, rows] : layouts()) {
    for (const MeterRow& row : rows) {
      if (!row.isCounter()) {
        AuditionPage page(channels);
        row.setPeak(page.unit.statistics, 0.25F);
        page.poll();
        EXPECT_THAT(page.writes(), ElementsAre(row.name + "Field.setFloatValue 0.25",
                                               row.name + "Indicator.setIntValue 2",
                                               row.name + "Field.setTextColor 0.5 0 0 1"))
            << channels << " channels, " << row.name;
      }
    }
  }
}

TEST(MeterPoll, ShowsACountInItsOwnRedFieldAloneAndLightsTheClipLampOfItsSignal) {
  for (const auto& [channels, rows] : layouts()) {
    for (const MeterRow& row : rows) {
      if (row.isCounter()) {
        AuditionPage page(channels);
        row.setCount(page.unit.statistics, 1234567);
        page.poll();
        EXPECT_THAT(page.writes(),
                    ElementsAre(lampOf(row), row.name + "Field.setStringValue 1234567",
                                row.name + "Field.setTextColor 0.5 0 0 1"))
            << channels << " channels, " << row.name;
      }
    }
  }
}

TEST(MeterPoll, ReadsTheFirstRecordOfEachSignalAloneOnTheMonoPage) {
  AuditionPage page(1U);
  page.unit.statistics[1] = {3.0F, 3.0F, 7, 7};
  page.unit.statistics[3] = {3.0F, 3.0F, 7, 7};
  page.poll();
  EXPECT_THAT(page.writes(), IsEmpty());
}

TEST(MeterPoll, LightsTheClipLampsForASecondChannelThatTheMonoPageDoesNotShow) {
  AuditionPage page(6U);
  page.unit.statistics[1] = {3.0F, 3.0F, 7, 7};
  page.unit.statistics[3] = {3.0F, 3.0F, 7, 7};
  page.poll();
  EXPECT_THAT(page.writes(), ElementsAre("sourceClipIndicator.setIntValue 2",
                                         "encoderClipIndicator.setIntValue 2"));
}

TEST(MeterPoll, UpdatesLampsFirstAndThenTheReadingsInTheOrderOfTheTable) {
  for (const auto& [channels, rows] : layouts()) {
    AuditionPage page(channels);
    page.unit.statistics.fill({1.5F, 2.5F, 3, 4});
    page.poll();
    std::vector<std::string> expected = {"sourceClipIndicator.setIntValue 2",
                                         "encoderClipIndicator.setIntValue 2"};
    for (const MeterRow& row : rows) {
      const std::string field = row.name + "Field.";
      if (row.isCounter()) {
        expected.push_back(field + "setStringValue " + (row.isInterSample() ? "4" : "3"));
      } else {
        expected.push_back(field + "setFloatValue " + (row.isInterSample() ? "2.5" : "1.5"));
        expected.push_back(row.name + "Indicator.setIntValue 2");
      }
      expected.push_back(field + "setTextColor 0.5 0 0 1");
    }
    EXPECT_THAT(page.writes(), ElementsAreArray(expected)) << channels << " channels";
  }
}

TEST(MeterPoll, AsksForTheSummaryAndTheFiguresAtEachPoll) {
  AuditionPage page;
  page.advance(750);
  EXPECT_THAT(page.record.calls.count("unit.getProperty 5302 scope 0 element 0 size 96"), 20U);
}

TEST(MeterPoll, ShowsFullScaleItselfWithoutLampOrColour) {
  AuditionPage page;
  page.unit.statistics[0].mSamplePeak = 0.0F;
  page.poll();
  EXPECT_THAT(page.writes(), ElementsAre("sslField.setFloatValue 0"));
}

TEST(MeterPoll, TakesTheSmallestOverAsAnOver) {
  AuditionPage page;
  page.unit.statistics[0].mSamplePeak = 0.0001F;
  page.poll();
  EXPECT_THAT(page.writes(),
              ElementsAre("sslField.setFloatValue 0.0001", "sslIndicator.setIntValue 2",
                          "sslField.setTextColor 0.5 0 0 1"));
}

TEST(MeterPoll, NeverShowsAPeakAtOrBelowTheFloor) {
  AuditionPage page;
  for (const float peak : {-60.0F, -60.001F, -144.0F, -kInfinity, kNotANumber}) {
    page.unit.statistics.fill({peak, peak, 0, 0});
    page.poll();
    EXPECT_THAT(page.writes(), IsEmpty()) << peak;
  }
  page.unit.statistics[0].mSamplePeak = std::nextafter(-60.0F, 0.0F);
  page.poll();
  EXPECT_THAT(page.writes(), ElementsAre("sslField.setFloatValue -60"));
}

TEST(MeterPoll, WritesNothingForEqualLowerOrNotANumberFigures) {
  AuditionPage page;
  page.unit.statistics.fill({1.0F, 2.0F, 5, 6});
  page.poll();
  page.record.calls.clear();
  page.poll();
  page.unit.statistics.fill({0.5F, 1.5F, 4, 5});
  page.poll();
  page.unit.statistics.fill(
      {kNotANumber, kNotANumber, -5, std::numeric_limits<std::int64_t>::min()});
  page.poll();
  EXPECT_THAT(page.writes(), IsEmpty());
}

TEST(MeterPoll, HoldsAnInfinitePeakUntilAReset) {
  AuditionPage page;
  page.unit.statistics[0].mSamplePeak = kInfinity;
  page.poll();
  page.record.calls.clear();
  page.unit.statistics[0].mSamplePeak = 12.0F;
  page.poll();
  EXPECT_THAT(page.writes(), IsEmpty());
}

TEST(MeterPoll, ShowsCountsOfMoreThanThirtyTwoBits) {
  AuditionPage page;
  page.unit.statistics[2].mInterSampleClipCount = std::numeric_limits<std::int64_t>::max();
  page.poll();
  EXPECT_EQ(page.control<FakeTextField>("eilcField").text(), "9223372036854775807");
}

TEST(MeterPoll, KeepsLampAndColourWhenALaterPeakRises) {
  AuditionPage page;
  page.unit.statistics[0].mSamplePeak = 0.5F;
  page.poll();
  page.record.calls.clear();
  page.unit.statistics[0].mSamplePeak = 0.75F;
  page.poll();
  EXPECT_THAT(page.writes(),
              ElementsAre("sslField.setFloatValue 0.75", "sslIndicator.setIntValue 2",
                          "sslField.setTextColor 0.5 0 0 1"));
}

TEST(MeterPoll, LatchesTheClipLampsAndNeverTouchesALitOne) {
  AuditionPage page;
  page.control<FakeLevelIndicator>("sourceClipIndicator").setIntValue(1);
  page.record.calls.clear();
  page.unit.statistics.fill({-60.0F, -60.0F, 1, 0});
  page.poll();
  EXPECT_EQ(page.control<FakeLevelIndicator>("sourceClipIndicator").intValue(), 1);
  EXPECT_EQ(page.control<FakeLevelIndicator>("encoderClipIndicator").intValue(), 2);
  page.record.calls.clear();
  page.unit.statistics.fill({-60.0F, -60.0F, 0, 0});
  page.poll();
  EXPECT_THAT(page.writes(), IsEmpty());
}

TEST(MeterPoll, ChangesNothingWhenTheStatisticsCanNeverBeRead) {
  AuditionPage page;
  page.unit.statistics.fill({1.0F, 1.0F, 9, 9});
  page.unit.failAlways(UnitCall::GetProperty, kConverterProperty_PeakStats, -10879);
  page.advance(150);
  EXPECT_THAT(page.writes(), IsEmpty());
  EXPECT_THAT(
      page.record.log.lines(),
      testing::AllOf(testing::SizeIs(4), testing::Each("error getting peak stats: -10879")));
}

TEST(MeterPoll, ChangesNothingFromAFailedReadWhateverTheEarlierPollsBrought) {
  AuditionPage page;
  page.unit.statistics.fill({-20.0F, -10.0F, 0, 0});
  page.poll();
  page.record.calls.clear();
  page.unit.failAlways(UnitCall::GetProperty, kConverterProperty_PeakStats, -1);
  page.advance(300);
  EXPECT_THAT(page.writes(), IsEmpty());
}

TEST(MeterPoll, TakesTheFiguresWhenOnlyTheSummaryCouldNotBeRead) {
  AuditionPage page;
  page.unit.statistics[0].mSampleClipCount = 3;
  page.unit.failOnce(UnitCall::GetProperty, kConverterProperty_PeakStats, -1);
  page.poll();
  EXPECT_THAT(page.writes(),
              ElementsAre("sslcField.setStringValue 3", "sslcField.setTextColor 0.5 0 0 1"));
  EXPECT_THAT(page.record.log.lines(), ElementsAre("error getting peak stats: -1"));
  page.record.calls.clear();
  page.poll();
  EXPECT_THAT(page.writes(), ElementsAre("sourceClipIndicator.setIntValue 2"));
}

TEST(MeterPoll, KeepsEveryReadingWhenTheStatisticsAreResetFromElsewhere) {
  AuditionPage page;
  page.unit.statistics.fill({1.0F, 1.0F, 9, 9});
  page.poll();
  page.record.calls.clear();
  page.unit.hostSetsProperty(velk::kConverterProperty_ResetPeakStats, 1);
  page.advance(300);
  EXPECT_THAT(page.writes(), IsEmpty());
  EXPECT_THAT(page.record.notifications.names(), testing::Contains("auAACResetStatsNotification"));
  page.unit.statistics.fill({0.5F, 0.5F, 5, 5});
  page.poll();
  EXPECT_THAT(page.writes(), IsEmpty());
}

TEST(MeterPoll, KeepsHeldValuesOverAVisitToTheOtherPage) {
  AuditionPage page;
  page.unit.statistics[0].mSamplePeak = -6.0F;
  page.poll();
  page.tabs().userClicks(1);
  page.record.calls.clear();
  page.unit.statistics[0].mSamplePeak = -3.0F;
  page.advance(1000);
  EXPECT_THAT(page.record.calls.starting("auditionController.", "unit."), IsEmpty());
  page.tabs().userClicks(0);
  page.record.calls.clear();
  page.poll();
  EXPECT_THAT(page.writes(), ElementsAre("sslField.setFloatValue -3"));
  page.tabs().userClicks(1);
  page.tabs().userClicks(0);
  page.record.calls.clear();
  page.poll();
  EXPECT_THAT(page.writes(), IsEmpty());
}

}  // namespace
}  // namespace audition_test

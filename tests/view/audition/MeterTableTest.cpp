#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include "view/audition/MeterReadings.h"
#include "view/audition/MeterRow.h"
#include "view/audition/PeakHoldMeters.h"
#include "view/audition/ViewHeight.h"

namespace audition_test {
namespace {

using namespace velk;

std::vector<MeterRow> allRows() {
  std::vector<MeterRow> rows = kStereoRows;
  rows.insert(rows.end(), kMonoRows.begin(), kMonoRows.end());
  return rows;
}

TEST(MeterTable, NamesEachReadingByWhatFeedsIt) {
  const std::vector<MeterRow> rows = allRows();
  ASSERT_EQ(meterReadings().size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const MeterReading& reading = meterReadings()[i];
    const MeterRow& row = rows[i];
    EXPECT_EQ(reading.name, row.name);
    EXPECT_EQ(reading.set, row.name[2] == 'm' ? ReadingSet::Mono : ReadingSet::Stereo) << row.name;
    EXPECT_EQ(reading.record, row.record()) << row.name;
    if (row.isCounter()) {
      EXPECT_EQ(std::get<MeterReading::Count>(reading.member),
                row.isInterSample() ? &TruePeakStats::mInterSampleClipCount
                                    : &TruePeakStats::mSampleClipCount)
          << row.name;
    } else {
      EXPECT_EQ(std::get<MeterReading::Peak>(reading.member), row.isInterSample()
                                                                  ? &TruePeakStats::mInterSamplePeak
                                                                  : &TruePeakStats::mSamplePeak)
          << row.name;
    }
  }
}

TEST(MeterTable, DeclaresAFieldForEachReadingAndALampForEachPeak) {
  PeakHoldMeters meters;
  ui::Connections connections;
  meters.declareOutlets(connections);
  std::vector<std::string> expected;
  for (const MeterRow& row : allRows()) {
    expected.push_back(row.name + "Field");
    if (!row.isCounter()) {
      expected.push_back(row.name + "Indicator");
    }
  }
  std::vector<std::string> names;
  for (const auto& outlet : connections.outlets()) {
    names.push_back(outlet.name);
    EXPECT_EQ(std::holds_alternative<ui::LevelIndicator**>(outlet.slot),
              outlet.name.ends_with("Indicator"));
  }
  EXPECT_EQ(names, expected);
}

TEST(HelpButton, KeepsItsDistanceToTheLowerEdgeOfWhatIsVisible) {
  EXPECT_EQ(helpButtonY(kExpandedAuditionHeight), 7.0);
  EXPECT_EQ(helpButtonY(kCollapsedAuditionHeight), 181.0);
}

}  // namespace
}  // namespace audition_test

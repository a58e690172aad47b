#include "view/fakes/ViewTest.h"

namespace {

using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

class PropertyAccess : public fakes::ViewTest {
 protected:
  std::pair<bool, bool> clipped() {
    bool source = true;
    bool encoded = true;
    view().isSourceClipped(source, encoded);
    return {source, encoded};
  }
};

TEST_F(PropertyAccess, CountsTheChannelsOfTheOutput) {
  unit.channels = 5;
  bind();
  EXPECT_EQ(view().getNumChannelsFromAudioUnit(), 5U);
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.getProperty 8 scope 2 element 0 size 40"));
}

TEST_F(PropertyAccess, CountsNoChannelsWhenTheFormatCannotBeRead) {
  bind();
  unit.failOnce(UnitCall::GetProperty, kAudioUnitProperty_StreamFormat, -10868);
  EXPECT_EQ(view().getNumChannelsFromAudioUnit(), 0U);
  EXPECT_THAT(record.log.lines(), IsEmpty());
}

TEST_F(PropertyAccess, ReadsThePeakStatistics) {
  bind();
  unit.statistics[2] = {0.5F, 0.75F, 3, 4};
  velk::PeakStatistics block{};
  view().getPeakStats(block);
  EXPECT_EQ(block[2].mSamplePeak, 0.5F);
  EXPECT_EQ(block[2].mInterSamplePeak, 0.75F);
  EXPECT_EQ(block[2].mSampleClipCount, 3);
  EXPECT_EQ(block[2].mInterSampleClipCount, 4);
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.getProperty 5302 scope 0 element 0 size 96"));
}

TEST_F(PropertyAccess, FillsTheBlockWhenTheStatisticsCannotBeRead) {
  bind();
  unit.failOnce(UnitCall::GetProperty, velk::kConverterProperty_PeakStats, -10879);
  velk::PeakStatistics block{};
  block.fill({1.0F, 2.5F, 3, 4});
  view().getPeakStats(block);
  EXPECT_THAT(record.log.lines(), ElementsAre("error getting peak stats: -10879"));
  for (const velk::TruePeakStats& record : block) {
    EXPECT_EQ(record.mSamplePeak, -60.0F);
    EXPECT_EQ(record.mInterSamplePeak, 2.5F);
    EXPECT_EQ(record.mSampleClipCount, 0);
    EXPECT_EQ(record.mInterSampleClipCount, -60);
  }
}

TEST_F(PropertyAccess, ResetsTheStatisticsByWritingOne) {
  bind();
  view().resetClippingAndPeaks();
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.setProperty 5303 = 1"));
}

TEST_F(PropertyAccess, LogsAResetThatTheUnitRefuses) {
  bind();
  unit.failOnce(UnitCall::SetProperty, velk::kConverterProperty_ResetPeakStats, -10865);
  view().resetClippingAndPeaks();
  EXPECT_THAT(record.log.lines(),
              ElementsAre("Unable to reset clipping and peak data- error from AU: -10865"));
}

TEST_F(PropertyAccess, ReportsNoClippingForACleanBlock) {
  bind();
  // Peaks are not consulted.
  unit.statistics.fill({6.0F, 7.0F, 0, 0});
  EXPECT_EQ(clipped(), std::pair(false, false));
}

TEST_F(PropertyAccess, ReportsASignalAsClippedByAnyCountOfItsChannels) {
  bind();
  for (std::size_t slot = 0; slot < 4; ++slot) {
    for (const auto& counts : {std::pair<std::int64_t, std::int64_t>{1, 0}, {0, 1}}) {
      unit.statistics.fill({-60.0F, -60.0F, 0, 0});
      unit.statistics[slot].mSampleClipCount = counts.first;
      unit.statistics[slot].mInterSampleClipCount = counts.second;
      EXPECT_EQ(clipped(), std::pair(slot < 2, slot >= 2)) << slot;
    }
  }
}

TEST_F(PropertyAccess, IgnoresTheSecondChannelOfAMonoUnit) {
  for (const UInt32 channels : {0U, 1U}) {
    unit.channels = channels;
    bind();
    unit.statistics.fill({-60.0F, -60.0F, 0, 0});
    unit.statistics[1].mSampleClipCount = 1;
    unit.statistics[3].mSampleClipCount = 1;
    EXPECT_EQ(clipped(), std::pair(false, false));
    unit.statistics[0].mSampleClipCount = 1;
    unit.statistics[2].mInterSampleClipCount = 1;
    EXPECT_EQ(clipped(), std::pair(true, true));
  }
}

TEST_F(PropertyAccess, ComparesCountsAsSignedNumbers) {
  bind();
  unit.statistics.fill({-60.0F, -60.0F, -1, -60});
  EXPECT_EQ(clipped(), std::pair(false, false));
}

TEST_F(PropertyAccess, ReportsNoClippingWhenTheStatisticsCannotBeRead) {
  bind();
  unit.statistics.fill({6.0F, 6.0F, 9, 9});
  unit.failOnce(UnitCall::GetProperty, velk::kConverterProperty_PeakStats, -1);
  EXPECT_EQ(clipped(), std::pair(false, false));
}

TEST_F(PropertyAccess, MonitorsTheEncodedSignalByWritingZero) {
  bind();
  view().monitorEncoder(false);
  EXPECT_FALSE(view().isMonitoringEncoder());
  view().monitorEncoder(true);
  EXPECT_TRUE(view().isMonitoringEncoder());
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.setProperty 5301 = 1", "unit.setProperty 5301 = 0"));
}

TEST_F(PropertyAccess, KeepsTheMonitoredSignalWhenTheUnitRefuses) {
  bind();
  unit.failOnce(UnitCall::SetProperty, velk::kConverterProperty_MonitorSource, -10851);
  view().monitorEncoder(false);
  EXPECT_TRUE(view().isMonitoringEncoder());
  EXPECT_THAT(record.log.lines(),
              ElementsAre("There was an error changing the source to monitor: -10851"));
}

TEST_F(PropertyAccess, WritesTheTestStateThenDisablesTheMenu) {
  bind();
  view().setPerformingListeningTest(true);
  EXPECT_TRUE(view().isPerformingListeningTest());
  view().setPerformingListeningTest(false);
  EXPECT_FALSE(view().isPerformingListeningTest());
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.setProperty 5304 = 1", "view.encoderPopup.setEnabled false",
                          "unit.setProperty 5304 = 0", "view.encoderPopup.setEnabled true"));
}

TEST_F(PropertyAccess, IgnoresATestStateThatTheUnitRefuses) {
  bind();
  unit.failOnce(UnitCall::SetProperty, velk::kConverterProperty_ListeningTestActive, -1);
  view().setPerformingListeningTest(true);
  EXPECT_FALSE(view().isPerformingListeningTest());
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.setProperty 5304 = 1"));
}

}  // namespace

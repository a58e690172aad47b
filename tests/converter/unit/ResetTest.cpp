#include <gtest/gtest.h>

#include "Rig.h"

namespace {

void expectStatistics(Rig& rig, const velk::PeakStatistics& expected) {
  const auto read = rig.property(velk::kConverterProperty_PeakStats);
  for (std::size_t slot = 0; slot < read.size(); ++slot) {
    EXPECT_EQ(read[slot].mSamplePeak, expected[slot].mSamplePeak);
    EXPECT_EQ(read[slot].mInterSamplePeak, expected[slot].mInterSamplePeak);
    EXPECT_EQ(read[slot].mSampleClipCount, expected[slot].mSampleClipCount);
    EXPECT_EQ(read[slot].mInterSampleClipCount, expected[slot].mInterSampleClipCount);
  }
}

TEST(Reset, ForgetsTheAudio) {
  const Signal input = music(2, 40000, 44100);
  Rig fresh;
  const Signal expected = fresh.render(input);
  Rig rig;
  rig.render(music(2, 33333, 44100, 3));
  rig.unit().reset();
  EXPECT_EQ(rig.render(input), expected);
  rig.unit().reset();
  rig.unit().reset();
  EXPECT_EQ(rig.render(input), expected);
}

TEST(Reset, ForgetsTheSourceToo) {
  Rig rig;
  rig.monitorSource(true);
  rig.render(music(2, 33333, 44100));
  rig.unit().reset();
  EXPECT_EQ(rms(rig.render(silence(2, 30000))[0], 0, 30000), 0);
}

TEST(Reset, KeepsSettingMonitorAndFlags) {
  Rig rig;
  rig.setPreset(2);
  rig.monitorSource(true);
  rig.unit().reset();
  EXPECT_EQ(rig.parameter(velk::kConverterParam_Format), 1);
  EXPECT_EQ(rig.property(velk::kConverterProperty_MonitorSource), 1U);
  EXPECT_EQ(rig.property(audio_unit::offlineRenderProperty), 1U);
  const Signal source = music(2, 20000, 44100);
  EXPECT_EQ(rig.renderAligned(source), source);
}

TEST(Reset, TakesUpASettingThatWasStillWaiting) {
  const Signal input = music(2, 40000, 44100);
  Rig fresh;
  fresh.setPreset(2);
  const Signal expected = fresh.render(input);
  Rig rig;
  rig.render(music(2, 10000, 44100, 3));
  rig.setPreset(1);
  rig.render(silence(2, 100), 100);
  rig.setPreset(2);
  rig.unit().reset();
  EXPECT_EQ(rig.render(input), expected);
}

TEST(Reset, KeepsTheStatistics) {
  Rig rig;
  Signal hot = music(2, 60000, 44100);
  for (auto& samples : hot) {
    for (float& sample : samples) sample *= 4;
  }
  rig.render(hot);
  rig.render(silence(2, 30000));
  const auto before = rig.property(velk::kConverterProperty_PeakStats);
  ASSERT_GT(before[0].mSampleClipCount, 0);
  rig.unit().reset();
  expectStatistics(rig, before);
  rig.render(silence(2, 30000));
  expectStatistics(rig, before);
}

TEST(Reset, EndsWhatIsMetered) {
  Rig rig;
  Signal loud = silence(2, 40000);
  for (std::size_t i = 0; i < loud[0].size(); ++i) loud[0][i] = loud[1][i] = i % 2 == 0 ? 2 : -2;
  rig.render(loud);
  const auto ended = rig.property(velk::kConverterProperty_PeakStats);
  EXPECT_GT(ended[0].mInterSampleClipCount, 0);
  rig.unit().reset();
  expectStatistics(rig, ended);
  rig.render(silence(2, 30000));
  expectStatistics(rig, ended);
}

TEST(Reset, KeepsTheCountOfMissedFramesAndRestartsTheBitRate) {
  Rig rig;
  rig.renderTooFast(music(2, std::size_t{6} * 44100, 44100));
  rig.unit().reset();
  const UInt64 missed = rig.missedFrames();
  EXPECT_GT(missed, 0U);
  rig.setOffline(true);
  const auto rate = rig.property(converter::kConverterProperty_BitRate);
  EXPECT_EQ(rate.recentKbps, 0);
  EXPECT_EQ(rate.averageKbps, 0);
  rig.render(music(2, 20000, 44100));
  EXPECT_EQ(rig.missedFrames(), missed);
}

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <thread>
#include <vector>

#include "AllocationCount.h"
#include "MeterSignals.h"
#include "SameStatistics.h"
#include "converter/meters/SignalMeters.h"

using converter::clearedPeakStatistics;
using converter::SignalMeters;
using converter::Soundness;
using converter::Stretch;
using meter_signals::Samples;
using velk::PeakStatistics;

namespace {

/// Planes that each hold a different signal.
struct Feed {
  std::array<Samples, 4> planes{
      meter_signals::hotMix(20000, 2.0F, 1), meter_signals::mix(20000, 0.2F, 2),
      meter_signals::clippedMix(20000, 5.0F, 3), meter_signals::whiteNoise(20000, 1.2F, 4)};

  void into(SignalMeters& meters, std::size_t at, std::size_t frames) const {
    const std::array whole{Stretch{frames, Soundness::sound}};
    meters.process(from(0, at).data(), from(2, at).data(), frames, whole);
  }

  void past(SignalMeters& meters, std::size_t at, std::size_t frames) const {
    meters.pass(from(0, at).data(), from(2, at).data(), frames);
  }

  /// Two planes from index `plane` on, starting at frame `at`.
  std::array<const float*, 2> from(std::size_t plane, std::size_t at) const {
    return {planes[plane].data() + at, planes[plane + 1].data() + at};
  }

  velk::TruePeakStats alone(std::size_t plane, std::size_t from, std::size_t to) const {
    converter::TruePeakMeter meter;
    meter.process(planes[plane].data(), from);
    meter.reset();
    meter.process(planes[plane].data() + from, to - from);
    return meter.statistics();
  }
};

void expectSame(const velk::TruePeakStats& read, const velk::TruePeakStats& expected) {
  EXPECT_TRUE(same(read, expected));
}

}  // namespace

TEST(SignalMeters, PutEachChannelOfEachSignalIntoItsSlot) {
  const Feed feed;
  SignalMeters meters(2);
  feed.into(meters, 0, 9000);
  const PeakStatistics read = meters.read();
  for (std::size_t slot = 0; slot < read.size(); ++slot) {
    expectSame(read[slot], feed.alone(slot, 0, 9000));
  }
}

TEST(SignalMeters, LeaveTheSecondChannelClearedInMono) {
  const Feed feed;
  SignalMeters meters(1);
  feed.into(meters, 0, 5000);
  const PeakStatistics read = meters.read();
  expectSame(read[velk::kPeakStatsSlot_SourceLeft], feed.alone(0, 0, 5000));
  expectSame(read[velk::kPeakStatsSlot_SourceRight], converter::clearedStatistics());
  expectSame(read[velk::kPeakStatsSlot_EncodedLeft], feed.alone(2, 0, 5000));
  expectSame(read[velk::kPeakStatsSlot_EncodedRight], converter::clearedStatistics());
}

TEST(SignalMeters, ReadClearedAfterAResetEvenIfNoBlockFollows) {
  const Feed feed;
  SignalMeters meters(2);
  feed.into(meters, 0, 5000);
  EXPECT_FALSE(same(meters.read(), clearedPeakStatistics()));
  meters.requestReset();
  EXPECT_TRUE(same(meters.read(), clearedPeakStatistics()));
}

TEST(SignalMeters, CutBothSignalsAtTheSameSample) {
  const Feed feed;
  SignalMeters meters(2);
  feed.into(meters, 0, 5000);
  meters.requestReset();
  feed.into(meters, 5000, 4000);
  const PeakStatistics read = meters.read();
  for (std::size_t slot = 0; slot < read.size(); ++slot) {
    expectSame(read[slot], feed.alone(slot, 5000, 9000));
  }
}

TEST(SignalMeters, KeepTheReadingsWhenTheSignalEnds) {
  const Feed feed;
  SignalMeters meters(2);
  feed.into(meters, 0, 5000);
  const PeakStatistics before = meters.read();
  meters.abandon();
  EXPECT_TRUE(same(meters.read(), before));
}

TEST(SignalMeters, PassOverBothSignals) {
  const Feed feed;
  SignalMeters meters(2);
  feed.past(meters, 0, 5000);
  EXPECT_TRUE(same(meters.read(), clearedPeakStatistics()));
  feed.into(meters, 5000, 4000);
  const PeakStatistics read = meters.read();
  for (std::size_t slot = 0; slot < read.size(); ++slot) {
    expectSame(read[slot], feed.alone(slot, 5000, 9000));
  }
}

TEST(SignalMeters, AreResetDuringAPassToo) {
  const Feed feed;
  SignalMeters meters(2);
  feed.into(meters, 0, 5000);
  meters.requestReset();
  feed.past(meters, 5000, 4000);
  EXPECT_TRUE(same(meters.read(), clearedPeakStatistics()));
}

TEST(SignalMeters, NeverAllocate) {
  const Feed feed;
  SignalMeters meters(2);
  const std::size_t before = allocationCount();
  for (std::size_t at = 0; at + 512 <= 20000; at += 512) {
    feed.into(meters, at, 512);
    meters.requestReset();
    feed.past(meters, at, 512);
    static_cast<void>(meters.read());
  }
  meters.abandon();
  EXPECT_EQ(allocationCount(), before);
}

TEST(SignalMeters, AreReadAndResetWhileTheyRun) {
  const Feed feed;
  SignalMeters meters(2);
  std::atomic<bool> done{false};
  std::thread audio([&] {
    for (int round = 0; round < 5; ++round) {
      for (std::size_t at = 0; at + 64 <= 20000; at += 64) feed.into(meters, at, 64);
    }
    done = true;
  });
  bool ordered = true;
  while (!done) {
    for (const velk::TruePeakStats& stats : meters.read()) {
      ordered = ordered && stats.mInterSamplePeak >= stats.mSamplePeak;
    }
    meters.requestReset();
  }
  audio.join();
  EXPECT_TRUE(ordered);
}

/// A sine just below full scale, with and without a hole from 4000 to 5000.
class CutSine : public testing::Test {
 protected:
  CutSine() {
    for (std::size_t i = 0; i < whole_.size(); ++i) {
      whole_[i] = 0.98F * static_cast<float>(std::sin(0.41 * static_cast<double>(i)));
    }
    cut_ = whole_;
    std::fill(cut_.begin() + 4000, cut_.begin() + 5000, 0.0F);
  }
  static velk::TruePeakStats read(const std::vector<float>& encoded,
                                  const std::vector<Stretch>& stretches) {
    SignalMeters meters(1);
    const std::array<const float*, 1> planes{encoded.data()};
    meters.process(planes.data(), planes.data(), encoded.size(), stretches);
    return meters.read()[velk::kPeakStatsSlot_EncodedLeft];
  }
  double wholePeak() const { return read(whole_, {{9000, Soundness::sound}}).mInterSamplePeak; }

  std::vector<float> whole_ = std::vector<float>(9000);
  std::vector<float> cut_;
};

TEST_F(CutSine, ReadsHigherAtItsEdgesWhenAllOfItCounts) {
  EXPECT_GT(read(cut_, {{9000, Soundness::sound}}).mInterSamplePeak, wholePeak() + 0.1);
}

TEST_F(CutSine, ReadsNoMoreThanTheWholeSineWhenTheHoleIsMissing) {
  const auto readings =
      read(cut_, {{4000, Soundness::sound}, {1000, Soundness::missing}, {4000, Soundness::sound}});
  EXPECT_NEAR(readings.mInterSamplePeak, wholePeak(), 0.001);
  EXPECT_EQ(readings.mInterSampleClipCount, 0);
}

TEST_F(CutSine, ReadsNothingThatIsUnsound) {
  cut_[6000] = 3.0F;
  const auto readings = read(cut_, {{4000, Soundness::sound},
                                    {1000, Soundness::missing},
                                    {2000, Soundness::unsound},
                                    {2000, Soundness::sound}});
  EXPECT_NEAR(readings.mInterSamplePeak, wholePeak(), 0.001);
  EXPECT_EQ(readings.mSampleClipCount, 0);
}

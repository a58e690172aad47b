#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "Rig.h"

namespace {

/// Renders music far faster than any worker can encode it; the audio thread does not wait.
class Starving : public testing::Test {
 protected:
  Starving() {
    output_ = rig_.renderTooFast(input_);
    missedAtOnce_ = rig_.missedFrames();
    // Then the worker has time again.
    rig_.setOffline(true);
    after_ = rig_.render(input_, 2048);
  }

  Rig rig_{{.sampleRate = 44100, .channels = 2, .maximumFrames = 2048}};
  const Signal input_ = smoothNoise(2, std::size_t{8} * 44100, 44100, 2200);
  const std::size_t latency_ = rig_.unit().latency();
  Signal output_;
  Signal after_;
  UInt64 missedAtOnce_ = 0;
};

TEST_F(Starving, IsCountedFrameByFrame) {
  const auto silent = [](const Signal& output, std::size_t begin) {
    std::size_t frames = 0;
    for (std::size_t i = begin; i < output[0].size(); ++i) {
      if (output[0][i] == 0 && output[1][i] == 0) ++frames;
    }
    return frames;
  };
  ASSERT_GT(missedAtOnce_, 0U);
  EXPECT_EQ(silent(output_, latency_), missedAtOnce_);
  // A stretch that the worker never received may still reach the output.
  EXPECT_EQ(silent(after_, 0), rig_.missedFrames() - missedAtOnce_);
}

TEST_F(Starving, IsSilenceAndNeverTheSource) {
  for (std::size_t i = latency_; i < output_[0].size(); ++i) {
    ASSERT_FALSE(output_[0][i] != 0 && output_[0][i] == input_[0][i - latency_] &&
                 output_[1][i] == input_[1][i - latency_])
        << i;
  }
}

TEST_F(Starving, LeavesWhatComesLaterInItsPlace) {
  const std::size_t begin = latency_ + std::size_t{3} * 44100;
  Signal delayed = silence(2, input_[0].size());
  for (std::size_t i = latency_; i < delayed[0].size(); ++i)
    delayed[0][i] = input_[0][i - latency_];
  EXPECT_LT(std::abs(delayBetween(delayed[0], after_[0], begin, begin + 100000)), 0.55);
  EXPECT_LT(residual(delayed[0], after_[0], begin, begin + 100000), -20);
}

TEST_F(Starving, CountsNothingMoreOnceTheWorkerIsWaitedForAndHasCaughtUp) {
  const UInt64 caughtUp = rig_.missedFrames();
  rig_.render(input_, 2048);
  EXPECT_EQ(rig_.missedFrames(), caughtUp);
}

TEST_F(Starving, LeavesTheSourceWhole) {
  rig_.monitorSource(true);
  rig_.render(silence(2, 20480), 2048);
  const UInt64 missed = rig_.missedFrames();
  const Signal source = rig_.renderTooFast(input_);
  EXPECT_GT(rig_.missedFrames(), missed);
  for (std::size_t channel = 0; channel < 2; ++channel) {
    EXPECT_TRUE(std::equal(source[channel].begin() + static_cast<std::ptrdiff_t>(latency_),
                           source[channel].end(), input_[channel].begin()));
  }
}

/// A sine at -0.54 dBFS whose inter-sample peaks are no higher, encoded in gaps.
TEST(StarvingSine, MakesNoOversAndReadsNoHigherThanTheWholeOne) {
  for (const double rate : {44100.0, 192000.0}) {
    const converter::UnitFormat format{.sampleRate = rate, .channels = 2, .maximumFrames = 2048};
    Signal sine = silence(2, static_cast<std::size_t>(8 * rate));
    for (std::size_t i = 0; i < sine[0].size(); ++i) {
      const double phase = 2 * std::numbers::pi * 997 * static_cast<double>(i) / rate;
      sine[0][i] = sine[1][i] = static_cast<float>(0.94 * std::sin(phase));
    }
    const auto peak = [](Rig& rig) {
      const auto read = rig.property(velk::kConverterProperty_PeakStats);
      EXPECT_EQ(read[velk::kPeakStatsSlot_EncodedLeft].mInterSampleClipCount, 0);
      return read[velk::kPeakStatsSlot_EncodedLeft].mInterSamplePeak;
    };
    Rig whole(format);
    whole.setPreset(3);
    whole.render(sine, 2048);
    Rig gappy(format);
    gappy.renderTooFast(sine);
    gappy.setOffline(true);
    gappy.render(sine, 2048);
    EXPECT_GT(gappy.missedFrames(), 0U);
    // Other settings code the sine a little otherwise.
    EXPECT_LT(peak(gappy), peak(whole) + 0.3) << rate;
  }
}

/// During a listening test a hole tells nobody which signal is heard.
TEST(StarvingTest, IsSilentInBothSignalsWhileAListeningTestRuns) {
  std::vector<std::vector<bool>> silences;
  for (const bool source : {false, true}) {
    Rig rig({.sampleRate = 44100, .channels = 2, .maximumFrames = 2048});
    const Signal input = smoothNoise(2, std::size_t{3} * 44100, 44100, 2200);
    rig.monitorSource(source);
    rig.setProperty(velk::kConverterProperty_ListeningTestActive, 1);
    rig.render(silence(2, 2048), 2048);
    const auto heard = rig.renderInGaps(input);
    EXPECT_GT(rig.missedFrames(), 0U);
    std::vector<bool> silent;
    for (std::size_t i = rig.unit().latency(); i < heard[0].size(); ++i) {
      silent.push_back(heard[0][i] == 0 && heard[1][i] == 0);
    }
    silences.push_back(silent);
  }
  EXPECT_EQ(silences[0], silences[1]);
  EXPECT_NE(std::ranges::count(silences[1], true), 0);
  EXPECT_NE(std::ranges::count(silences[1], false), 0);
}

}  // namespace

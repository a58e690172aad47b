#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

}  // namespace

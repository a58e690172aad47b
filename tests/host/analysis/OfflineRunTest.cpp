#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "DyingCodec.h"
#include "MemorySource.h"
#include "Sound.h"
#include "host/analysis/OfflineRun.h"
#include "host/analysis/Scans.h"
#include "host/messages/Failure.h"
#include "host/unit/EncoderSetting.h"

using host::OfflineRun;
using host::OfflineRunOptions;
using host::Signal;
using host::StretchOvers;
using testing::Gt;

namespace {

/// Noise that exceeds full scale in most stretches, and once it has been encoded in others too.
Sound hot(std::size_t frames, std::size_t channels = 2) {
  return noise(48000, channels, frames, 2.5F);
}

OfflineRunOptions locating(bool locates) {
  OfflineRunOptions options;
  options.chooseEncoder = [](AudioUnit unit) {
    host::applyEncoderSetting(unit, host::parsedEncoderSetting("aac,abr,96"));
  };
  options.locatesOvers = locates;
  return options;
}

struct Finished {
  host::Readings readings;
  std::vector<StretchOvers> overs;
};

Finished finished(OfflineRun& run) {
  Finished result;
  const auto keep = [&] {
    result.overs.insert(result.overs.end(), run.overs().begin(), run.overs().end());
  };
  while (run.step()) keep();
  result.readings = run.finish();
  keep();
  return result;
}

Finished ran(const Sound& sound, const OfflineRunOptions& options) {
  MemorySource source(sound);
  OfflineRun run(source, options);
  return finished(run);
}

std::int64_t sum(const std::vector<StretchOvers>& overs, Signal signal, std::uint32_t channel) {
  std::int64_t sum = 0;
  for (const auto& each : overs) {
    if (each.signal == signal && each.channel == channel) sum += each.count;
  }
  return sum;
}

TEST(OfflineRun, ReadsTheSameWhetherOrNotItLocatesOvers) {
  for (const std::size_t frames : {1U, 127U, 128U, 4096U, 30001U}) {
    const auto sound = hot(frames);
    EXPECT_EQ(host::asJson(ran(sound, locating(true)).readings),
              host::asJson(ran(sound, locating(false)).readings))
        << frames;
  }
}

TEST(OfflineRun, LocatesEveryOverOfBothSignals) {
  for (const std::size_t frames : {1U, 200U, 30001U}) {
    const auto result = ran(hot(frames), locating(true));
    for (std::uint32_t channel = 0; channel < 2; ++channel) {
      EXPECT_EQ(sum(result.overs, Signal::Source, channel),
                result.readings.source[channel].interSampleOvers)
          << frames;
      EXPECT_EQ(sum(result.overs, Signal::Encoded, channel),
                result.readings.encoded[channel].interSampleOvers)
          << frames;
    }
  }
}

TEST(OfflineRun, PutsOversAtTheMiddleOfTheirStretchOfTheSource) {
  constexpr std::int64_t frames = 30001;
  const auto result = ran(hot(frames), locating(true));
  ASSERT_THAT(result.overs.size(), Gt(100U));
  constexpr auto lastStretch = frames / host::overStretchFrames * host::overStretchFrames;
  for (const auto& overs : result.overs) {
    const bool isMiddle = overs.frame % host::overStretchFrames == host::overStretchFrames / 2;
    EXPECT_TRUE(isMiddle || overs.frame == lastStretch + (frames - lastStretch) / 2) << overs.frame;
  }
}

TEST(OfflineRun, LocatesTheSourcesOversWhereTheWaveformsScanDoes) {
  const auto sound = hot(30001);
  MemorySource source(sound);
  host::SharedOverview scanned(2);
  host::Progress progress;
  host::scanSource(source, scanned, progress);
  host::WaveformOverview located(2);
  for (const auto& overs : ran(sound, locating(true)).overs) {
    located.addOvers(overs.signal, overs.channel, overs.frame, overs.count);
  }
  for (std::uint32_t channel = 0; channel < 2; ++channel) {
    const auto marks = scanned.columns(channel, 0, 30001, 30001);
    const auto others = located.columns(channel, 0, 30001, 30001);
    for (std::size_t frame = 0; frame < marks.size(); ++frame) {
      EXPECT_EQ(marks[frame].sourceOvers, others[frame].sourceOvers) << frame;
    }
  }
}

TEST(OfflineRun, LocatesTheEncodedOversWhereTheWindowMarksThem) {
  const auto sound = hot(30001, 1);
  MemorySource source(sound);
  host::SharedOverview window(1);
  host::Progress progress;
  host::scanEncoded(source, host::parsedEncoderSetting("aac,abr,96"), window, progress);
  const auto marks = window.columns(0, 0, 30001, 30001);
  std::int64_t marked = 0;
  for (const auto& column : marks) marked += column.encodedOvers;
  const auto result = ran(sound, locating(true));
  EXPECT_EQ(marked, result.readings.encoded[0].interSampleOvers);
  for (const auto& overs : result.overs) {
    if (overs.signal != Signal::Encoded) continue;
    EXPECT_THAT(marks.at(static_cast<std::size_t>(overs.frame)).encodedOvers, Gt(0U));
  }
}

TEST(OfflineRun, StartsAtTheFirstFrameAndGetsThroughToTheLast) {
  MemorySource source(hot(20000));
  source.seek(7000);
  OfflineRun run(source, locating(false));
  double share = 0;
  std::size_t taken = 0;
  while (run.step()) {
    EXPECT_GE(run.share(), share);
    share = run.share();
    taken += run.inputFrames();
  }
  EXPECT_EQ(share, 1.0);
  EXPECT_EQ(taken, 20000U);
  EXPECT_EQ(run.finish().seconds, 20000 / 48000.0);
}

TEST(OfflineRun, GivesTheEncoderTheSourceTimesTheGain) {
  auto options = locating(false);
  options.gain = 0.5F;
  MemorySource source(hot(20000));
  OfflineRun run(source, options);
  const auto half = finished(run).readings;
  const auto whole = ran(hot(20000), locating(false)).readings;
  EXPECT_NEAR(half.source[0].samplePeakDbfs, whole.source[0].samplePeakDbfs - 6.02, 0.01);
}

TEST(OfflineRun, FailsWhenItsCodecDies) {
  MemorySource source(hot(60000));
  OfflineRun run(source, locating(false), unitWithDyingCodec);
  EXPECT_THROW(finished(run), host::Failure);
}

}  // namespace

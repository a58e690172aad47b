#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <random>

#include "Sound.h"
#include "host/analysis/WaveformOverview.h"

using host::Signal;
using host::WaveformColumn;
using host::WaveformOverview;

namespace {

/// Takes the sound in blocks of changing length.
void feed(WaveformOverview& overview, const Sound& sound) {
  std::size_t length = 1;
  for (std::size_t begin = 0; begin < sound.frames();) {
    const auto count = std::min(length, sound.frames() - begin);
    std::vector<const float*> planes;
    for (const auto& plane : sound.planes) planes.push_back(plane.data() + begin);
    overview.append(planes.data(), count);
    begin += count;
    length = length * 3 % 1009 + 1;
  }
}

WaveformColumn extremes(const std::vector<float>& samples, std::size_t begin, std::size_t end) {
  WaveformColumn column;
  for (auto i = begin; i < end; ++i) {
    column.minimum = std::min(column.minimum, samples[i]);
    column.maximum = std::max(column.maximum, samples[i]);
  }
  return column;
}

TEST(WaveformOverview, HoldsTheExtremesOfEverySampleWhileThereIsRoomForAll) {
  const auto sound = noise(48000, 2, 1000);
  WaveformOverview overview(2, 1024);
  feed(overview, sound);
  EXPECT_EQ(overview.frames(), 1000);
  EXPECT_EQ(overview.framesPerBucket(), 1);
  for (std::uint32_t channel = 0; channel < 2; ++channel) {
    const auto columns = overview.columns(channel, 100, 900, 800);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      EXPECT_EQ(columns[i].minimum, sound.planes[channel][100 + i]);
      EXPECT_EQ(columns[i].maximum, sound.planes[channel][100 + i]);
    }
  }
}

TEST(WaveformOverview, GivesTheTrueExtremesOfStretchesOfWholeBuckets) {
  const auto sound = noise(48000, 1, 1 << 16);
  WaveformOverview overview(1, 4096);
  feed(overview, sound);
  EXPECT_EQ(overview.framesPerBucket(), 16);
  for (const std::size_t count : {1U, 2U, 8U, 64U, 1024U, 4096U}) {
    const auto columns = overview.columns(0, 0, 1 << 16, count);
    const auto length = sound.frames() / count;
    for (std::size_t i = 0; i < count; ++i) {
      const auto expected = extremes(sound.planes[0], i * length, (i + 1) * length);
      ASSERT_EQ(columns[i].minimum, expected.minimum) << count << " " << i;
      ASSERT_EQ(columns[i].maximum, expected.maximum) << count << " " << i;
    }
  }
}

TEST(WaveformOverview, LosesNoPeakHoweverTheStretchIsCut) {
  const auto sound = noise(48000, 1, 77777);
  WaveformOverview overview(1, 512);
  feed(overview, sound);
  std::mt19937 random(1);
  const auto slack = static_cast<std::size_t>(overview.framesPerBucket());
  for (int turn = 0; turn < 200; ++turn) {
    const std::size_t begin = random() % 70000;
    const std::size_t end = begin + 1 + random() % (77777 - begin);
    const auto column =
        overview.columns(0, static_cast<std::int64_t>(begin), static_cast<std::int64_t>(end), 1)
            .front();
    const auto inner = extremes(sound.planes[0], begin, end);
    const auto outer = extremes(sound.planes[0], begin - std::min(begin, slack),
                                std::min(end + slack, sound.frames()));
    EXPECT_LE(column.minimum, inner.minimum);
    EXPECT_GE(column.maximum, inner.maximum);
    EXPECT_GE(column.minimum, outer.minimum);
    EXPECT_LE(column.maximum, outer.maximum);
  }
}

TEST(WaveformOverview, DoublesItsBucketsAsTheSignalGrows) {
  WaveformOverview overview(1, 64);
  const std::vector<float> samples(64, 0.5F);
  const float* const planes[] = {samples.data()};
  std::int64_t expected = 1;
  for (std::int64_t frames = 64; frames <= 64 * 1024; frames += 64) {
    overview.append(planes, 64);
    while (expected * 64 < frames) expected *= 2;
    ASSERT_EQ(overview.framesPerBucket(), expected) << frames;
  }
}

TEST(WaveformOverview, TakesInterleavedFramesAsItTakesPlanes) {
  const auto sound = noise(48000, 2, 5000);
  WaveformOverview ofPlanes(2, 256);
  feed(ofPlanes, sound);
  WaveformOverview interleaved(2, 256);
  std::vector<float> samples;
  for (std::size_t i = 0; i < 5000; ++i) {
    samples.push_back(sound.planes[0][i]);
    samples.push_back(sound.planes[1][i]);
  }
  interleaved.append(samples.data(), 5000);
  for (std::uint32_t channel = 0; channel < 2; ++channel) {
    const auto one = ofPlanes.columns(channel, 0, 5000, 100);
    const auto other = interleaved.columns(channel, 0, 5000, 100);
    for (std::size_t i = 0; i < 100; ++i) {
      EXPECT_EQ(one[i].minimum, other[i].minimum);
      EXPECT_EQ(one[i].maximum, other[i].maximum);
    }
  }
}

TEST(WaveformOverview, KeepsEveryOverAsBucketsGrow) {
  WaveformOverview overview(2, 64);
  const std::array<std::int64_t, 5> places = {0, 63, 64, 5000, 99999};
  for (const auto place : places) {
    overview.addOvers(Signal::Source, 0, place, 2);
    overview.addOvers(Signal::Encoded, 1, place, 3);
  }
  feed(overview, silence(48000, 2, 100000));
  const auto left = overview.columns(0, 0, 100000, 1).front();
  EXPECT_EQ(left.sourceOvers, 10U);
  EXPECT_EQ(left.encodedOvers, 0U);
  const auto right = overview.columns(1, 0, 100000, 1).front();
  EXPECT_EQ(right.sourceOvers, 0U);
  EXPECT_EQ(right.encodedOvers, 15U);
  for (const auto place : places) {
    EXPECT_GE(overview.columns(0, place, place + 1, 1).front().sourceOvers, 2U) << place;
  }
  EXPECT_EQ(overview.columns(0, 20000, 80000, 1).front().sourceOvers, 0U);
}

TEST(WaveformOverview, ForgetsTheOversOfOneSignal) {
  WaveformOverview overview(1, 64);
  for (std::int64_t frame = 0; frame < 1000; ++frame) {
    overview.addOvers(Signal::Source, 0, frame);
    overview.addOvers(Signal::Encoded, 0, frame);
  }
  overview.clearOvers(Signal::Encoded);
  const auto column = overview.columns(0, 0, 1000, 1).front();
  EXPECT_EQ(column.sourceOvers, 1000U);
  EXPECT_EQ(column.encodedOvers, 0U);
}

TEST(WaveformOverview, StopsCountingOversRatherThanBeginningAgain) {
  WaveformOverview overview(1, 64);
  overview.addOvers(Signal::Source, 0, 1, UINT32_MAX);
  overview.addOvers(Signal::Source, 0, 1, 5);
  EXPECT_EQ(overview.columns(0, 0, 10, 1).front().sourceOvers, UINT32_MAX);
}

TEST(WaveformOverview, HasNoSamplesWhereNoneWereTaken) {
  WaveformOverview overview(1, 64);
  feed(overview, silence(48000, 1, 32));
  const auto columns = overview.columns(0, -32, 96, 4);
  ASSERT_EQ(columns.size(), 4U);
  EXPECT_FALSE(columns[0].hasSamples());
  EXPECT_TRUE(columns[1].hasSamples());
  EXPECT_FALSE(columns[2].hasSamples());
  EXPECT_FALSE(columns[3].hasSamples());
}

TEST(WaveformOverview, GivesMoreColumnsThanThereAreFrames) {
  WaveformOverview overview(1, 64);
  auto sound = silence(48000, 1, 4);
  sound.planes[0] = {0.1F, 0.2F, 0.3F, 0.4F};
  feed(overview, sound);
  const auto columns = overview.columns(0, 0, 4, 8);
  ASSERT_EQ(columns.size(), 8U);
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(columns[i].maximum, sound.planes[0][i / 2]);
}

}  // namespace

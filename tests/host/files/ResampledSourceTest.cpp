#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "MemorySource.h"
#include "Sound.h"
#include "host/files/ResampledSource.h"

using host::ResampledSource;

namespace {

ResampledSource resampled(Sound sound, std::uint32_t sampleRate) {
  return {std::make_unique<MemorySource>(std::move(sound)), sampleRate};
}

Sound rest(host::AudioSource& source, std::size_t block = 777) {
  const auto channels = source.format().channels;
  auto sound = silence(source.format().sampleRate, channels, 0);
  std::vector<float> interleaved(block * channels);
  for (std::size_t got = block; got == block;) {
    got = source.read(interleaved.data(), block);
    for (std::size_t i = 0; i < got * channels; ++i) {
      sound.planes[i % channels].push_back(interleaved[i]);
    }
  }
  return sound;
}

/// Power of what is not the sine at its own phase over the power of the sine, dB, away from both
/// ends.
double distortion(const Sound& sound, double hertz, double amplitude) {
  double error = 0;
  double power = 0;
  for (std::size_t i = 2000; i + 2000 < sound.frames(); ++i) {
    const auto phase = 2 * std::numbers::pi * hertz * static_cast<double>(i) / sound.sampleRate;
    const auto ideal = amplitude * std::sin(phase);
    const auto difference = static_cast<double>(sound.planes[0][i]) - ideal;
    error += difference * difference;
    power += ideal * ideal;
  }
  return 10 * std::log10(error / power);
}

struct Rates {
  std::uint32_t from;
  std::uint32_t to;
};

class Resampling : public testing::TestWithParam<Rates> {};

TEST_P(Resampling, LeavesASineASineAtItsPlaceInTime) {
  const auto [from, to] = GetParam();
  for (const double part : {0.02, 0.3, 0.8}) {
    const auto hertz = part * std::min(from, to) / 2;
    auto source = resampled(sine(from, 1, from * 2, hertz), to);
    EXPECT_LT(distortion(rest(source), hertz, 0.5), -110) << hertz << " Hz";
  }
}

TEST_P(Resampling, LastsAsLongToTheSample) {
  const auto [from, to] = GetParam();
  for (const std::size_t frames : {1U, 2U, 100U, 4096U, 12345U, 100003U}) {
    auto source = resampled(noise(from, 2, frames), to);
    const auto expected = std::max<std::int64_t>(
        std::llround(static_cast<double>(frames) * to / static_cast<double>(from)), 1);
    EXPECT_EQ(source.frames(), expected) << frames;
    EXPECT_EQ(rest(source).frames(), static_cast<std::size_t>(expected)) << frames;
  }
}

TEST_P(Resampling, GivesTheSameFramesHoweverTheyAreReached) {
  const auto [from, to] = GetParam();
  auto source = resampled(noise(from, 2, from * 3), to);
  const auto whole = rest(source);
  for (const std::size_t frame : {std::size_t{to} * 2 + 17, std::size_t{1}, std::size_t{to} / 3}) {
    source.seek(static_cast<std::int64_t>(frame));
    const auto sound = rest(source, 4096);
    auto expected = whole;
    for (auto& plane : expected.planes) {
      plane.erase(plane.begin(), plane.begin() + static_cast<std::ptrdiff_t>(frame));
    }
    EXPECT_EQ(sound.frames(), expected.frames());
    EXPECT_LT(largestDifference(sound, expected), 1e-6F) << frame;
  }
}

INSTANTIATE_TEST_SUITE_P(ResampledSource, Resampling,
                         testing::Values(Rates{8000, 32000}, Rates{11025, 44100},
                                         Rates{22050, 44100}, Rates{24000, 48000},
                                         Rates{37800, 44100}, Rates{64000, 96000},
                                         Rates{176400, 88200}, Rates{192000, 96000}),
                         [](const auto& test) {
                           return std::to_string(test.param.from) + "_to_" +
                                  std::to_string(test.param.to);
                         });

TEST(ResampledSource, LetsNothingFoldBackFromAboveTheNewBand) {
  auto source = resampled(sine(192000, 1, 192000, 60000), 96000);
  const auto sound = rest(source);
  float largest = 0;
  for (std::size_t i = 2000; i + 2000 < sound.frames(); ++i) {
    largest = std::max(largest, std::abs(sound.planes[0][i]));
  }
  EXPECT_LT(largest, 1e-6F);
}

TEST(ResampledSource, StandsAsideWhereTheRateIsRightAlready) {
  auto original = std::make_unique<MemorySource>(noise(48000, 1, 10));
  const auto* const place = original.get();
  EXPECT_EQ(host::atSampleRate(std::move(original), 48000).get(), place);
}

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Sound.h"
#include "host/messages/Failure.h"
#include "host/playback/RateConvertingRenderer.h"

using host::RateConvertingRenderer;

namespace {

/// Renders a sound, then silence, and counts the frames.
class SoundRenderer : public host::BlockRenderer {
 public:
  explicit SoundRenderer(Sound sound) : sound_(std::move(sound)) {}

  void renderBlock(float* const* planes, std::uint32_t frames) noexcept override {
    for (std::uint32_t i = 0; i < frames; ++i, ++given_) {
      for (std::size_t channel = 0; channel < sound_.channels(); ++channel) {
        planes[channel][i] = given_ < sound_.frames() ? sound_.planes[channel][given_] : 0.0F;
      }
    }
  }
  host::AudioFormat format() const {
    return {sound_.sampleRate, static_cast<std::uint32_t>(sound_.channels())};
  }
  std::size_t given() const { return given_; }

 private:
  Sound sound_;
  std::size_t given_ = 0;
};

/// Renders what the device plays, in blocks of that size.
Sound playThrough(RateConvertingRenderer& renderer, std::uint32_t rate, std::size_t channels,
                  std::size_t frames, std::size_t block) {
  auto sound = silence(rate, channels, frames);
  for (std::size_t at = 0; at < frames; at += block) {
    float* planes[2] = {};
    for (std::size_t channel = 0; channel < channels; ++channel) {
      planes[channel] = sound.planes[channel].data() + at;
    }
    renderer.renderBlock(planes, static_cast<std::uint32_t>(std::min(block, frames - at)));
  }
  return sound;
}

struct Rates {
  std::uint32_t from;
  std::uint32_t to;
};

class RateConverting : public testing::TestWithParam<Rates> {};

TEST_P(RateConverting, KeepsASineASineAndIsAsLateAsItSays) {
  const auto [from, to] = GetParam();
  constexpr double hertz = 1000;
  SoundRenderer source(sine(from, 1, from, hertz));
  RateConvertingRenderer renderer(source, source.format(), to);
  const std::size_t frames = to / 2;
  const auto sound = playThrough(renderer, to, 1, frames, 480);
  const double step = 2 * std::numbers::pi * hertz / to;
  // The sine that fits best over the last tenth of a second, whole periods, and the rest.
  const std::size_t begin = frames - to / 10;
  double sines = 0;
  double cosines = 0;
  for (std::size_t i = begin; i < frames; ++i) {
    const auto sample = static_cast<double>(sound.planes[0][i]);
    sines += sample * std::sin(step * static_cast<double>(i));
    cosines += sample * std::cos(step * static_cast<double>(i));
  }
  const double amplitude = 2 * std::hypot(sines, cosines) / static_cast<double>(frames - begin);
  EXPECT_NEAR(amplitude, 0.5, 0.005);
  double rest = 0;
  for (std::size_t i = begin; i < frames; ++i) {
    const auto angle = step * static_cast<double>(i) + std::atan2(cosines, sines);
    rest += std::pow(static_cast<double>(sound.planes[0][i]) - amplitude * std::sin(angle), 2);
  }
  EXPECT_LT(10 * std::log10(rest / static_cast<double>(frames - begin)), -110);
  // The phase of the next frame, in frames of the source. Whole periods are ambiguous, but longer
  // than any error allowed here.
  const double late = static_cast<double>(source.given()) - renderer.latency();
  const double expected = 2 * std::numbers::pi * hertz * late / from;
  const double phase = step * static_cast<double>(frames) + std::atan2(cosines, sines);
  const double off = std::remainder(phase - expected, 2 * std::numbers::pi);
  EXPECT_LT(std::abs(off) * from / (2 * std::numbers::pi * hertz), 1.01 + 0.01 * from / to);
}

TEST_P(RateConverting, GivesTheSameInBlocksOfAnyLength) {
  const auto [from, to] = GetParam();
  const auto sound = noise(from, 2, from / 4);
  SoundRenderer one(sound);
  SoundRenderer other(sound);
  RateConvertingRenderer even(one, one.format(), to);
  RateConvertingRenderer uneven(other, other.format(), to);
  const auto expected = playThrough(even, to, 2, to / 4, 512);
  EXPECT_TRUE(playThrough(uneven, to, 2, to / 4, 77).planes == expected.planes);
  SoundRenderer third(sound);
  RateConvertingRenderer large(third, third.format(), to);
  EXPECT_TRUE(playThrough(large, to, 2, to / 4, 5000).planes == expected.planes);
  EXPECT_GT(*std::max_element(expected.planes[1].begin(), expected.planes[1].end()), 0.1F);
}

TEST_P(RateConverting, TakesAsMuchAsTheDevicePlays) {
  const auto [from, to] = GetParam();
  SoundRenderer source(silence(from, 2, 0));
  RateConvertingRenderer renderer(source, source.format(), to);
  const auto early = renderer.latency();
  playThrough(renderer, to, 2, std::size_t{to} * 5, 512);
  EXPECT_NEAR(static_cast<double>(source.given()), 5.0 * from, 129);
  EXPECT_NEAR(renderer.latency(), early, 129);
  // Short enough for a key press to seem immediate.
  EXPECT_LT(renderer.latency(), from * 0.05);
}

TEST_P(RateConverting, HasEverythingOfTheSourceInIt) {
  const auto [from, to] = GetParam();
  const auto rate = std::min(from, to);
  // Up to 90 % of the narrower band.
  for (const double part : {0.01, 0.2, 0.45}) {
    SoundRenderer source(sine(from, 1, from, part * rate));
    RateConvertingRenderer renderer(source, source.format(), to);
    const auto sound = playThrough(renderer, to, 1, to / 2, 512);
    double power = 0;
    const std::size_t begin = to / 4;
    for (std::size_t i = begin; i < sound.frames(); ++i) {
      power += std::pow(static_cast<double>(sound.planes[0][i]), 2);
    }
    EXPECT_NEAR(10 * std::log10(power / static_cast<double>(sound.frames() - begin)),
                20 * std::log10(0.5) - 3.01, 0.05)
        << part;
  }
}

INSTANTIATE_TEST_SUITE_P(ToADevice, RateConverting,
                         testing::Values(Rates{44100, 48000}, Rates{48000, 44100},
                                         Rates{32000, 48000}, Rates{88200, 96000},
                                         Rates{96000, 48000}, Rates{192000, 48000},
                                         Rates{176400, 96000}),
                         [](const auto& test) {
                           return std::to_string(test.param.from) + "_to_" +
                                  std::to_string(test.param.to);
                         });

TEST(RateConvertingRenderer, NeedsARate) {
  SoundRenderer source(silence(48000, 2, 0));
  EXPECT_THROW(RateConvertingRenderer(source, source.format(), 0), host::Failure);
}

}  // namespace

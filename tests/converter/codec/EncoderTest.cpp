#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>

#include "PairSignal.h"
#include "contract/ConverterInterface.h"
#include "converter/codec/Decoder.h"
#include "converter/codec/Encoder.h"
#include "converter/unit/ConverterUnit.h"
#include "programs/demo_mix/DemoMix.h"

namespace {

using converter::openDecoder;
using converter::openEncoder;
using converter::UnitFormat;

TEST(Encoder, OpensForEverySettingThatTheParametersAllow) {
  for (const double sampleRate : {32000.0, 44100.0, 48000.0, 88200.0, 96000.0}) {
    for (const UInt32 channels : {1U, 2U}) {
      const UnitFormat unit{.sampleRate = sampleRate, .channels = channels, .maximumFrames = 512};
      for (const float format : {0.0F, 1.0F, 2.0F}) {
        for (const float strategy : {0.0F, 1.0F, 2.0F}) {
          for (float value = 0; value < 128; value += strategy == 2 ? 26.0F : 1.0F) {
            if (strategy < 2 && value > 16) break;
            const auto setting =
                nearestSetting({format, strategy, value}, unit, converter::encoderAbilities());
            EXPECT_NO_THROW(openEncoder(setting, unit))
                << format << "," << strategy << "," << value << " at " << sampleRate;
          }
        }
      }
    }
  }
}

TEST(Encoder, RefusesASampleRateThatAacDoesNotSupport) {
  const UnitFormat unit{.sampleRate = 192000, .channels = 2, .maximumFrames = 512};
  EXPECT_THROW(openEncoder({.bitRate = 128000}, unit), std::runtime_error);
}

/// Sizes of the signal's access units, without the first six.
std::vector<std::size_t> accessUnitBits(const converter::Setting& setting, const UnitFormat& unit,
                                        const Signal& signal) {
  const auto encoder = openEncoder(setting, unit);
  const std::size_t length = encoder->timing().frameLength;
  std::vector<std::size_t> bits;
  for (std::size_t at = 0; at + length <= signal[0].size(); at += length) {
    const float* planes[] = {signal[0].data() + at, signal.back().data() + at};
    bits.push_back(8 * encoder->encode(planes).size());
  }
  bits.erase(bits.begin(), bits.begin() + 6);
  return bits;
}

/// Of two seconds of music.
std::vector<std::size_t> accessUnitBits(const converter::Setting& setting, const UnitFormat& unit) {
  return accessUnitBits(
      setting, unit,
      music(unit.channels, static_cast<std::size_t>(2 * unit.sampleRate), unit.sampleRate));
}

double kbps(double bitsPerUnit, const converter::Setting& setting, const UnitFormat& unit) {
  const double length = openEncoder(setting, unit)->timing().frameLength;
  return bitsPerUnit * unit.sampleRate / length / 1000;
}

double averageOf(const std::vector<std::size_t>& bits) {
  double sum = 0;
  for (const std::size_t each : bits) sum += static_cast<double>(each);
  return sum / static_cast<double>(bits.size());
}

/// The lowest and the highest average of ten seconds anywhere in the signal, as parts of the rate
/// asked for.
struct Averages {
  double lowest = 10;
  double highest = 0;
};

Averages tenSecondAverages(const converter::Setting& setting, const UnitFormat& unit,
                           const Signal& signal) {
  const auto bits = accessUnitBits(setting, unit, signal);
  const auto ofTenSeconds = static_cast<std::size_t>(
      10 * unit.sampleRate / openEncoder(setting, unit)->timing().frameLength);
  Averages averages;
  for (std::size_t start = 0; start + ofTenSeconds <= bits.size(); ++start) {
    const auto first = bits.begin() + static_cast<std::ptrdiff_t>(start);
    const double average = averageOf({first, first + static_cast<std::ptrdiff_t>(ofTenSeconds)});
    const double part = kbps(average, setting, unit) * 1000 / setting.bitRate;
    averages.lowest = std::min(averages.lowest, part);
    averages.highest = std::max(averages.highest, part);
  }
  return averages;
}

class TenSeconds : public testing::TestWithParam<std::tuple<float, float, float>> {};

TEST_P(TenSeconds, OfMusicHaveTheRateThatWasAskedFor) {
  const auto [format, strategy, index] = GetParam();
  const UnitFormat unit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};
  const auto setting =
      nearestSetting({format, strategy, index}, unit, converter::encoderAbilities());
  if (setting.format != static_cast<converter::Format>(format)) {
    GTEST_SKIP() << "this build has LC only";
  }
  const auto mix = host::demo_mix::demoMix(24);
  const Signal signals[] = {music(2, std::size_t{24} * 44100, 44100),
                            {{mix.left.begin(), mix.left.begin() + 22 * 44100},
                             {mix.right.begin(), mix.right.begin() + 22 * 44100}}};
  for (const auto& signal : signals) {
    const auto averages = tenSecondAverages(setting, unit, signal);
    EXPECT_GT(averages.lowest, 0.99);
    // The fewest bits that an access unit can do with are more than these rates allow at times.
    EXPECT_LT(averages.highest, setting.bitRate < 48000 ? 1.07 : 1.01);
  }
}

INSTANTIATE_TEST_SUITE_P(Encoder, TenSeconds,
                         testing::Values(std::tuple{0, 0, 3}, std::tuple{0, 0, 7},
                                         std::tuple{0, 1, 10}, std::tuple{0, 1, 14},
                                         std::tuple{0, 1, 16}, std::tuple{1, 0, 0},
                                         std::tuple{1, 0, 7}, std::tuple{1, 1, 10},
                                         std::tuple{1, 1, 16}, std::tuple{2, 0, 0},
                                         std::tuple{2, 1, 5}));

TEST(Encoder, GivesDifficultPassagesMoreThanTheBaseRate) {
  const UnitFormat unit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};
  for (const float index : {10.0F, 14.0F}) {
    const auto setting = nearestSetting({0, 1, index}, unit, converter::encoderAbilities());
    const auto bits = accessUnitBits(setting, unit);
    const auto largest = static_cast<double>(*std::ranges::max_element(bits));
    EXPECT_GT(kbps(largest, setting, unit), 1.1 * setting.bitRate / 1000.0);
  }
}

TEST(Encoder, EncodesAsMuchOfTheBandAsItsRateAllows) {
  if (!converter::hasHighEfficiencyEncoder()) GTEST_SKIP() << "this build has another encoder";
  const auto keeps = [](double frequency, double sampleRate, UInt32 bitRate) {
    const UnitFormat unit{.sampleRate = sampleRate, .channels = 2, .maximumFrames = 512};
    Signal source = silence(2, 40960);
    for (std::size_t i = 0; i < source[0].size(); ++i) {
      const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(i) / sampleRate;
      source[0][i] = source[1][i] = static_cast<float>(0.3 * std::sin(phase));
    }
    const Signal encoded = encodeFrom({.bitRate = bitRate}, unit, source, 0);
    return rms(encoded[0], 8192, encoded[0].size()) > 0.9 * rms(source[0], 8192, 30000);
  };
  EXPECT_TRUE(keeps(19700, 44100, 256000));
  EXPECT_FALSE(keeps(19700, 44100, 192000));
  EXPECT_TRUE(keeps(17700, 44100, 192000));
  EXPECT_FALSE(keeps(17700, 44100, 128000));
  EXPECT_TRUE(keeps(18700, 48000, 192000));
  EXPECT_FALSE(keeps(18700, 48000, 128000));
  EXPECT_TRUE(keeps(15000, 44100, 128000));
}

TEST(Encoder, SpendsMoreBitsInHigherVbrModes) {
  const UnitFormat unit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};
  const auto averageAt = [&](float quality) {
    return averageOf(
        accessUnitBits(nearestSetting({0, 2, quality}, unit, converter::encoderAbilities()), unit));
  };
  EXPECT_GT(averageAt(127), 1.5 * averageAt(0));
  EXPECT_GE(averageAt(100), averageAt(60));
}

TEST(Decoder, RefusesANonsenseConfiguration) {
  const UnitFormat unit;
  const std::uint8_t nonsense[] = {0xff, 0xff, 0xff};
  EXPECT_THROW(openDecoder(nonsense, unit, 1024), std::runtime_error);
}

TEST(Decoder, ReturnsNullForANonsenseAccessUnit) {
  const UnitFormat unit;
  const auto encoder = openEncoder({.bitRate = 128000}, unit);
  const auto decoder = openDecoder(encoder->configuration(), unit, encoder->timing().frameLength);
  const std::vector<std::uint8_t> nonsense(200, 0xa5);
  EXPECT_EQ(decoder->decode(nonsense), nullptr);
}

}  // namespace

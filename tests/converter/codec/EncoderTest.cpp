#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "PairSignal.h"
#include "contract/ConverterInterface.h"
#include "converter/codec/Decoder.h"
#include "converter/codec/Encoder.h"
#include "converter/unit/ConverterUnit.h"

namespace {

using converter::openDecoder;
using converter::openEncoder;
using converter::UnitFormat;

TEST(Encoder, OpensForEverySettingThatParametersCanAskFor) {
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

TEST(Encoder, RefusesASampleRateThatAacDoesNotKnow) {
  const UnitFormat unit{.sampleRate = 192000, .channels = 2, .maximumFrames = 512};
  EXPECT_THROW(openEncoder({.bitRate = 128000}, unit), std::runtime_error);
}

/// Access units of two seconds of music, without those of the start.
std::vector<std::size_t> accessUnitBits(const converter::Setting& setting, const UnitFormat& unit) {
  const auto encoder = openEncoder(setting, unit);
  const std::size_t length = encoder->timing().frameLength;
  const Signal signal =
      music(unit.channels, static_cast<std::size_t>(2 * unit.sampleRate), unit.sampleRate);
  std::vector<std::size_t> bits;
  for (std::size_t at = 0; at + length <= signal[0].size(); at += length) {
    const float* planes[] = {signal[0].data() + at, signal.back().data() + at};
    bits.push_back(8 * encoder->encode(planes).size());
  }
  bits.erase(bits.begin(), bits.begin() + 6);
  return bits;
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

TEST(Encoder, AveragesTheTargetRate) {
  const UnitFormat unit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};
  for (const float format : {0.0F, 1.0F, 2.0F}) {
    for (const float index : {7.0F, 10.0F}) {
      const auto setting = nearestSetting({format, 0, index}, unit, converter::encoderAbilities());
      EXPECT_NEAR(kbps(averageOf(accessUnitBits(setting, unit)), setting, unit),
                  setting.bitRate / 1000.0, 0.05 * setting.bitRate / 1000.0);
    }
  }
}

TEST(Encoder, KeepsEveryAccessUnitUnderTheConstrainedPeak) {
  const auto abilities = converter::encoderAbilities();
  if (!abilities.constrainedVbr) GTEST_SKIP() << "this build has no constrained VBR";
  const UnitFormat unit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};
  for (const float format : {0.0F, 1.0F, 2.0F}) {
    double last = 0;
    for (const float index : {5.0F, 7.0F, 10.0F, 12.0F, 14.0F, 16.0F}) {
      const auto setting = nearestSetting({format, 1, index}, unit, abilities);
      const auto bits = accessUnitBits(setting, unit);
      // Access units are whole bytes.
      const double most =
          setting.bitRate * openEncoder(setting, unit)->timing().frameLength / unit.sampleRate;
      EXPECT_LT(static_cast<double>(*std::ranges::max_element(bits)), most + 8)
          << format << "," << index;
      const double average = kbps(averageOf(bits), setting, unit);
      EXPECT_GE(average, 0.97 * last) << "a higher peak gives a lower average";
      last = average;
    }
  }
}

TEST(Encoder, CodesAsMuchOfTheBandAsItsRateAffords) {
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

TEST(Decoder, RefusesAnEmptyConfigurationOrGivesNothing) {
  const UnitFormat unit;
  const std::uint8_t nonsense[] = {0xff, 0xff, 0xff};
  EXPECT_THROW(openDecoder(nonsense, unit, 1024), std::runtime_error);
}

TEST(Decoder, GivesNothingForAnAccessUnitThatIsNone) {
  const UnitFormat unit;
  const auto encoder = openEncoder({.bitRate = 128000}, unit);
  const auto decoder = openDecoder(encoder->configuration(), unit, encoder->timing().frameLength);
  const std::vector<std::uint8_t> nonsense(200, 0xa5);
  EXPECT_EQ(decoder->decode(nonsense), nullptr);
}

}  // namespace

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "PairSignal.h"
#include "converter/codec/Encoder.h"

namespace {

using converter::Format;
using converter::kBlockFrames;
using converter::Position;
using converter::Setting;

constexpr converter::UnitFormat kUnit{.sampleRate = 44100, .channels = 2, .maximumFrames = 512};

class Pair : public testing::TestWithParam<Format> {
 protected:
  Pair() {
    setting_ = nearestSetting({static_cast<float>(GetParam()), 0, 9}, kUnit,
                              converter::encoderAbilities());
  }

  /// The encoded signal from `start` to the end of the source, by a pair opened for `start`.
  std::vector<float> encodeFrom(Position start) const {
    return ::encodeFrom(setting_, kUnit, source_, start)[0];
  }

  /// Error relative to the source at [place, place + 512), dB; `encoded` starts at `begin`.
  double errorAt(const std::vector<float>& encoded, Position begin, Position place) const {
    double error = 0;
    double power = 0;
    for (Position i = place; i < place + 512; ++i) {
      const double sample = source_[0][static_cast<std::size_t>(i)];
      const double difference = encoded[static_cast<std::size_t>(i - begin)] - sample;
      error += difference * difference;
      power += sample * sample;
    }
    return 10 * std::log10(error / power);
  }

  static constexpr Position kFrames = 40 * Position{kBlockFrames};
  const Signal source_ = smoothNoise(2, kFrames, 44100, 4000);
  Setting setting_;
};

TEST_P(Pair, StartedInMidSignalIsAsGoodAsOneThatRanAllAlong) {
  const std::vector<float> running = encodeFrom(0);
  for (Position start = 20 * Position{kBlockFrames}; start < 21 * Position{kBlockFrames};
       start += 256) {
    EXPECT_LT(errorAt(encodeFrom(start), start, start), errorAt(running, 0, start) + 3) << start;
  }
}

constexpr const char* kNames[] = {"Lc", "He", "HeV2"};

INSTANTIATE_TEST_SUITE_P(Of, Pair, testing::Values(Format::lc, Format::he, Format::heV2),
                         [](const auto& test) {
                           return std::string(kNames[static_cast<int>(test.param)]);
                         });

}  // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "Signals.h"
#include "converter/CodecPair.h"
#include "converter/Latency.h"

namespace {

using converter::CodecPair;
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

  /// The encoded signal from `start` to where the source ends, by a pair that began for it.
  std::vector<float> encodeFrom(Position start) const {
    converter::SourceHistory history(2);
    converter::AudioBlock block;
    std::unique_ptr<CodecPair> pair;
    std::vector<float> encoded;
    std::vector<float> planes[2];
    for (auto& plane : planes) plane.resize(kBlockFrames);
    float* const output[] = {planes[0].data(), planes[1].data()};
    for (Position at = 0; at + kBlockFrames <= kFrames; at += kBlockFrames) {
      block.position = at;
      for (std::size_t channel = 0; channel < 2; ++channel) {
        std::copy_n(source_[channel].begin() + at, kBlockFrames, block.planes[channel].begin());
      }
      history.write(block);
      const Position end = block.end() - converter::kEncodedBehindSource;
      const Position begin = std::max(start, end - Position{kBlockFrames});
      if (end <= begin) continue;
      if (!pair) pair = std::make_unique<CodecPair>(openEncoder(setting_, kUnit), kUnit, start);
      const Position from = start + static_cast<Position>(encoded.size());
      pair->render(history, from, static_cast<UInt32>(end - from), output);
      encoded.insert(encoded.end(), planes[0].begin(), planes[0].begin() + (end - from));
    }
    return encoded;
  }

  /// Error against the source at [place, place + 512), dB; `encoded` begins at `begin`.
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

TEST_P(Pair, StartedAmidTheSignalIsAsGoodAsOneThatRanAllAlong) {
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

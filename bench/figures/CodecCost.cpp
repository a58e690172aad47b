#include <array>
#include <memory>

#include "Clock.h"
#include "Figure.h"
#include "Rig.h"
#include "converter/codec/Decoder.h"
#include "converter/codec/Encoder.h"

namespace figures {
namespace {

constexpr double kRate = 44100;
constexpr std::size_t kSeconds = 12;
/// 60 seconds of audio in all; unit and bare codec take turns.
constexpr int kRounds = 5;
constexpr std::size_t kBlock = 512;

struct Case {
  const char* name;
  velk::EncoderSetting values;
  double goal;
};
constexpr std::array kCases = {
    Case{"cpu_lc_256", {0, 0, 14}, 1.20},
    Case{"cpu_he_64", {1, 0, 7}, 1.20},
    Case{"cpu_hev2_48", {2, 0, 6}, 1.25},
};

/// Processor time of the bare encoder and decoder.
double bareSeconds(const velk::EncoderSetting& values, const Signal& music) {
  const converter::UnitFormat unit{.sampleRate = kRate, .channels = 2, .maximumFrames = kBlock};
  const auto setting = nearestSetting(values, unit, converter::encoderAbilities());
  const auto encoder = openEncoder(setting, unit);
  const std::size_t length = encoder->timing().frameLength;
  const auto decoder = openDecoder(encoder->configuration(), unit, encoder->timing().frameLength);
  const double start = processorSeconds();
  for (std::size_t at = 0; at + length <= music[0].size(); at += length) {
    const float* const planes[] = {music[0].data() + at, music[1].data() + at};
    const auto accessUnit = encoder->encode(planes);
    if (!accessUnit.empty()) decoder->decode(accessUnit);
  }
  return processorSeconds() - start;
}

double unitSeconds(const velk::EncoderSetting& values, const Signal& music) {
  Rig rig({.sampleRate = kRate, .channels = 2, .maximumFrames = kBlock});
  rig.setSetting(values.format, values.strategy, values.rateOrQuality);
  Signal output = silence(2, kBlock);
  float* const out[] = {output[0].data(), output[1].data()};
  const double start = processorSeconds();
  for (std::size_t at = 0; at + kBlock <= music[0].size(); at += kBlock) {
    const float* const in[] = {music[0].data() + at, music[1].data() + at};
    rig.unit().render(in, out, kBlock);
  }
  return processorSeconds() - start;
}

std::vector<Row> measure() {
  const Signal input = music(2, kSeconds * std::size_t{44100}, kRate);
  std::vector<Row> rows;
  for (const Case& each : kCases) {
    std::vector<double> ratios;
    for (int round = 0; round < kRounds; ++round) {
      const double bare = bareSeconds(each.values, input);
      ratios.push_back(unitSeconds(each.values, input) / bare);
    }
    rows.push_back(atMost(each.name, median(ratios), each.goal));
  }
  return rows;
}

}  // namespace

Family codecCost() {
  std::vector<std::string> names;
  names.reserve(kCases.size());
  for (const Case& each : kCases) names.emplace_back(each.name);
  return {names, measure};
}

}  // namespace figures

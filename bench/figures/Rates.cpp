#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "Figure.h"
#include "Rig.h"
#include "converter/codec/Encoder.h"

namespace figures {
namespace {

constexpr double kRate = 44100;

struct Range {
  double lowest = 10;
  double highest = 0;
};

/// Averages of any ten seconds of music, relative to the rate asked for.
Range averages(float strategy, std::size_t index) {
  const converter::UnitFormat unit{.sampleRate = kRate, .channels = 2, .maximumFrames = 512};
  const auto setting = nearestSetting({velk::kFormat_AAC, strategy, static_cast<float>(index)},
                                      unit, converter::encoderAbilities());
  const auto encoder = openEncoder(setting, unit);
  const std::size_t length = encoder->timing().frameLength;
  const Signal signal = music(2, std::size_t{40} * 44100, kRate);
  std::vector<double> sums = {0};
  for (std::size_t at = 0; at + length <= signal[0].size(); at += length) {
    const std::array<const float*, 2> planes{signal[0].data() + at, signal[1].data() + at};
    sums.push_back(sums.back() + 8 * static_cast<double>(encoder->encode(planes.data()).size()));
  }
  const auto units = static_cast<std::size_t>(10 * kRate) / length;
  const double seconds = static_cast<double>(units * length) / kRate;
  Range range;
  // Without the encoder's start.
  for (std::size_t start = 6; start + units < sums.size(); ++start) {
    const double rate = (sums[start + units] - sums[start]) / seconds / setting.bitRate;
    range.lowest = std::min(range.lowest, rate);
    range.highest = std::max(range.highest, rate);
  }
  return range;
}

std::vector<Row> measure() {
  const Range plus = averages(velk::kStrategy_VBRC, 14);
  const Range small = averages(velk::kStrategy_VBRC, 10);
  const Range average = averages(velk::kStrategy_ABR, 10);
  return {atLeast("rate_vbrc_256_lowest", plus.lowest, 0.97),
          atMost("rate_vbrc_256_highest", plus.highest, 1.15),
          atLeast("rate_vbrc_128_lowest", small.lowest, 0.97),
          atMost("rate_vbrc_128_highest", small.highest, 1.15),
          atMost("rate_abr_128_error", std::max(1 - average.lowest, average.highest - 1), 0.01)};
}

}  // namespace

Family rates() {
  return {{"rate_vbrc_256_lowest", "rate_vbrc_256_highest", "rate_vbrc_128_lowest",
           "rate_vbrc_128_highest", "rate_abr_128_error"},
          measure};
}

}  // namespace figures

#include <algorithm>
#include <cmath>

#include "Figure.h"
#include "Rig.h"

namespace figures {
namespace {

constexpr double kRate = 44100;
constexpr double kGoal = -33;

/// Residual of the source in AAC ABR 320, dB; the worse of the two channels.
double differenceOf(const Signal& source) {
  Rig rig;
  rig.setSetting(velk::kFormat_AAC, velk::kStrategy_ABR, 16);
  const Signal encoded = rig.renderAligned(source);
  const std::size_t end = source[0].size() - 8192;
  return std::max(residual(source[0], encoded[0], 8192, end),
                  residual(source[1], encoded[1], 8192, end));
}

/// Offset between source and encoded signal, to a hundredth of a sample.
double offset() {
  Rig rig;
  rig.setSetting(velk::kFormat_AAC, velk::kStrategy_ABR, 16);
  const Signal source = smoothNoise(2, 88200, kRate, 2200);
  const Signal encoded = rig.renderAligned(source);
  return std::fabs(std::round(100 * delayBetween(source[0], encoded[0], 8192, 80000)) / 100);
}

std::vector<Row> measure() {
  const Signal independent = sines(2, 176400, kRate, 200, 12000);
  const Signal equal = {independent[0], independent[0]};
  return {atMost("difference_lc_320", differenceOf(equal), kGoal, "dB"),
          atMost("difference_lc_320_independent", differenceOf(independent), kGoal, "dB"),
          atMost("offset_lc_320", offset(), 0, "samples")};
}

}  // namespace

Family difference() {
  return {{"difference_lc_320", "difference_lc_320_independent", "offset_lc_320"}, measure};
}

}  // namespace figures

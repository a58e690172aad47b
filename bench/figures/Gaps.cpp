#include <cmath>
#include <numbers>
#include <vector>

#include "BurstyDevice.h"
#include "Figure.h"
#include "Rig.h"

namespace figures {
namespace {

/// Samples missing with a device that asks for 10,240 at once.
double missedInBursts(double rate) {
  BurstyDevice device(rate, static_cast<std::size_t>(2 * rate), 10240, 512);
  Rig rig({.sampleRate = rate, .channels = 2, .maximumFrames = 512}, device.clock());
  rig.setOffline(false);
  const Signal input = music(2, static_cast<std::size_t>(10 * rate), rate);
  rig.renderInBlocks(input, [&](std::size_t) { return device.nextCall(); });
  return static_cast<double>(rig.missedFrames());
}

/// Inter-sample overs read of a sine at -0.54 dBFS that a late worker encodes in pieces.
double falseOvers() {
  Rig rig({.sampleRate = 44100, .channels = 2, .maximumFrames = 2048});
  Signal sine = silence(2, std::size_t{20} * 44100);
  for (std::size_t i = 0; i < sine[0].size(); ++i) {
    const double phase = 2 * std::numbers::pi * 997 * static_cast<double>(i) / 44100;
    sine[0][i] = sine[1][i] = static_cast<float>(0.94 * std::sin(phase));
  }
  rig.renderInGaps(sine);
  const auto read = rig.property(velk::kConverterProperty_PeakStats);
  return static_cast<double>(read[velk::kPeakStatsSlot_EncodedLeft].mInterSampleClipCount +
                             read[velk::kPeakStatsSlot_EncodedRight].mInterSampleClipCount);
}

std::vector<Row> measure() {
  return {atMost("burst_missed_frames_88200", missedInBursts(88200), 0),
          atMost("burst_missed_frames_96000", missedInBursts(96000), 0),
          atMost("burst_missed_frames_192000", missedInBursts(192000), 0),
          atMost("gap_false_overs", falseOvers(), 0)};
}

}  // namespace

Family gaps() {
  return {{"burst_missed_frames_88200", "burst_missed_frames_96000", "burst_missed_frames_192000",
           "gap_false_overs"},
          measure};
}

}  // namespace figures

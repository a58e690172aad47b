#pragma once

#include <vector>

#include "Signals.h"
#include "converter/transcoder/AudioBlock.h"
#include "converter/unit/ConverterUnit.h"

/// The setting that a unit took up with the sample at `position`.
struct TakenChange {
  converter::Position position;
  velk::EncoderSetting values;
};

struct ChangeReport {
  std::size_t changes = 0;
  /// Samples between the cross-fades that are not, bit for bit, those of the encoder whose turn it
  /// is: of one opened for that very position and primed from the source.
  std::size_t strangeSamples = 0;
  /// The largest step between neighbouring samples at a change over the largest one of the two
  /// encoders' signals around it, and at which change it is.
  double largestStep = 0;
  std::size_t largestStepAt = 0;
};

/// Compares what a unit of that format made of `input`, without the latency, with what the encoders
/// make one by one. The first change is the setting at position 0.
ChangeReport checkChanges(const converter::UnitFormat& unit, const Signal& input,
                          const Signal& encoded, const std::vector<TakenChange>& changes);

/// Every format with every strategy at so many rates or qualities (1 to 3) that are far apart.
std::vector<velk::EncoderSetting> everySetting(int rates);

/// Indices below `count` in an order in which every index follows every other one exactly once.
std::vector<std::size_t> everyOrderedPair(std::size_t count);

/// Takes one unit through every ordered pair of the settings, `spacing` samples apart, and checks
/// it.
ChangeReport walkThroughEveryPair(const converter::UnitFormat& unit,
                                  const std::vector<velk::EncoderSetting>& settings,
                                  std::size_t spacing);

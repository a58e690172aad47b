#pragma once

#include <vector>

#include "Signals.h"
#include "converter/transcoder/AudioBlock.h"
#include "converter/unit/ConverterUnit.h"

/// The setting that a unit adopted with the sample at `position`.
struct TakenChange {
  converter::Position position;
  velk::EncoderSetting values;
};

struct ChangeReport {
  std::size_t changes = 0;
  /// Samples between cross-fades that differ in any bit from a reference: an encoder opened for
  /// that very position and primed from the source.
  std::size_t strangeSamples = 0;
  /// The largest step between neighbouring samples at any change, divided by the largest step of
  /// the two encoders' signals around it; and the index of that change.
  double largestStep = 0;
  std::size_t largestStepAt = 0;
};

/// Compares a unit's `encoded` output for `input`, with the latency removed, with reference
/// encoders. The first change is the setting at position 0.
ChangeReport checkChanges(const converter::UnitFormat& unit, const Signal& input,
                          const Signal& encoded, const std::vector<TakenChange>& changes);

/// Every format with every strategy, each at `rates` (1 to 3) widely spaced rates or qualities.
std::vector<velk::EncoderSetting> everySetting(int rates);

/// A sequence of indices below `count` in which each follows each other one exactly once.
std::vector<std::size_t> everyOrderedPair(std::size_t count);

/// Takes one unit through every ordered pair of the settings, a change every `spacing` samples, and
/// checks its output.
ChangeReport walkThroughEveryPair(const converter::UnitFormat& unit,
                                  const std::vector<velk::EncoderSetting>& settings,
                                  std::size_t spacing);

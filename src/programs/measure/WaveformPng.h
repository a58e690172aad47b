#pragma once

#include <filesystem>

#include "host/analysis/WaveformOverview.h"
#include "host/unit/Readings.h"

namespace host::measure {

/// Draws a whole file as a PNG: for each channel the waveform between two lanes of marks, above it
/// for overs of the source, below it for overs of the encoded signal. `reduction` is what
/// the file was reduced by, in tenths of a decibel. Throws `Failure`.
void drawWaveform(const WaveformOverview& overview, const Readings& readings, int reduction,
                  const std::filesystem::path& file);

}  // namespace host::measure

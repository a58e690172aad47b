#pragma once

#include "programs/demo_mix/Score.h"
#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// Holds the bar's chord: sawtooths detuned against each other, spread from left to right.
void playChord(Stereo& mix, const Bar& bar, std::size_t firstSixteenth);

}  // namespace host::demo_mix

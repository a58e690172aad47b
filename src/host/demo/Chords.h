#pragma once

#include "host/demo/Score.h"
#include "host/demo/Stereo.h"

namespace host::demo {

/// Holds the bar's chord: sawtooths detuned against each other, spread from left to right.
void playChord(Stereo& mix, const Bar& bar, std::size_t firstSixteenth);

}  // namespace host::demo

#pragma once

#include "programs/demo_mix/Score.h"
#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// Runs through the bar's chord in sixteenths of bell-like tones that echo from side to side.
void playArpeggio(Stereo& mix, const Bar& bar, std::size_t firstSixteenth);

}  // namespace host::demo_mix

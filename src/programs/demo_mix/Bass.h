#pragma once

#include "programs/demo_mix/Score.h"
#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// Plays the bar's root in eighths, in the middle.
void playBass(Stereo& mix, const Bar& bar, std::size_t firstSixteenth);

}  // namespace host::demo_mix

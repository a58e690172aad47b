#pragma once

#include "host/demo/Score.h"
#include "host/demo/Stereo.h"

namespace host::demo {

/// Plays the bar's root in eighths, in the middle.
void playBass(Stereo& mix, const Bar& bar, std::size_t firstSixteenth);

}  // namespace host::demo

#pragma once

#include "host/demo/Score.h"
#include "host/demo/Stereo.h"

namespace host::demo {

/// Runs through the bar's chord in sixteenths of bell-like tones that echo from side to side.
void playArpeggio(Stereo& mix, const Bar& bar, std::size_t firstSixteenth);

}  // namespace host::demo

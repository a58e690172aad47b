#pragma once

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// Turns both channels down together wherever the waveform of either exceeds 1, even between
/// samples. The gain starts to fall a millisecond or two before the peak and recovers afterwards.
/// No sample exceeds 1 then, and the waveform hardly does.
void limit(Stereo& mix);

}  // namespace host::demo_mix

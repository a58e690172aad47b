#pragma once

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// Turns both channels down together wherever the wave of one exceeds 1, be it between two samples,
/// with a gain that starts to fall some milliseconds ahead of the peak and recovers afterwards. No
/// sample exceeds 1 then, and the wave hardly does.
void limit(Stereo& mix);

}  // namespace host::demo_mix

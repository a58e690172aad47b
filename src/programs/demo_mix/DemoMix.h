#pragma once

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

/// A loud master of the piece, which fades out at the end. Its largest sample is exactly full scale
/// and negative, because 16-bit samples reach full scale on that side only.
Stereo demoMix(double seconds);

}  // namespace host::demo_mix

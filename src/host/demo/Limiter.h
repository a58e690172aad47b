#pragma once

#include "host/demo/Stereo.h"

namespace host::demo {

/// Turns both channels down together wherever one exceeds 1, with a gain that starts to fall some
/// milliseconds ahead of the peak and recovers afterwards. No sample exceeds 1 then.
void limit(Stereo& mix);

}  // namespace host::demo

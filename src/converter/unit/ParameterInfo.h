#pragma once

#include "audio_unit/Framework.h"
#include "converter/codec/Setting.h"

namespace converter {

/// Name, range and default of parameter 0, 1 or 2. `highest` is the format parameter's.
AudioUnitParameterInfo parameterInfo(AudioUnitParameterID id, Format highest);

}  // namespace converter

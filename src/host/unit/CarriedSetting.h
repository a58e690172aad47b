#pragma once

#include <optional>
#include <string>

#include "audio_unit/AudioUnitTypes.h"

namespace host {

/// When the encoder cannot do what the parameters ask for at this sample rate and channel count:
/// one line that says what it does instead.
std::optional<std::string> carriedOtherwise(AudioUnit unit);

}  // namespace host

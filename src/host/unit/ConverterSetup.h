#pragma once

#include <cstdint>
#include <memory>

#include "converter/unit/ConverterUnit.h"
#include "host/files/AudioSource.h"

namespace host {

/// The largest block that a unit is made for. Every host takes the same, so that all have the same
/// latency.
inline constexpr std::uint32_t unitBlockFrames = 4096;

/// A new unit for audio of this format. Throws `Failure`.
std::unique_ptr<converter::ConverterUnit> unitFor(AudioFormat format);

}  // namespace host

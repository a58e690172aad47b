#pragma once

#include <memory>

#include "host/playback/Devices.h"

namespace host {

/// Opens and starts the device with `open` at `playingRate`, and converts the rendered audio if
/// that is not the format's sample rate. Throws `Failure`.
std::unique_ptr<Output> openAtItsRate(const Device& device, AudioFormat format,
                                      BlockRenderer& renderer, const OpenDevice& open);

}  // namespace host

#pragma once

#include <memory>

#include "host/playback/Devices.h"

namespace host {

/// Opens and starts the device with `open`: at the format's sample rate, or where it lacks that at
/// `playingRate`, with what is rendered converted on the way. Throws `Failure`.
std::unique_ptr<Output> openAtItsRate(const Device& device, AudioFormat format,
                                      BlockRenderer& renderer, const OpenDevice& open);

}  // namespace host

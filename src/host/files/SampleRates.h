#pragma once

#include <array>
#include <cstdint>

namespace host {

/// The sample rates that a converter unit supports, in Hz.
inline constexpr std::array<std::uint32_t, 7> unitSampleRates = {32000, 44100,  48000, 88200,
                                                                 96000, 176400, 192000};

/// The rate at which audio of `sampleRate` Hz is played through the converter: its own if the unit
/// supports it, otherwise one that loses nothing audible, in a simple ratio if there is one.
std::uint32_t unitSampleRateFor(std::uint32_t sampleRate);

}  // namespace host

#pragma once

#include <cstdint>

#include "programs/demo_mix/Stereo.h"

namespace host::demo_mix {

void playKick(Stereo& mix, std::size_t at);
void playClap(Stereo& mix, std::size_t at, std::uint32_t seed);
/// A closed hat lasts a few hundredths of a second, an open one a few tenths.
void playHat(Stereo& mix, std::size_t at, double level, bool isOpen, std::uint32_t seed);

}  // namespace host::demo_mix

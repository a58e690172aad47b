#pragma once

namespace host::audition {

/// Lets assistive programs read a waveform's place and loop, and move the place. May be called
/// again.
void makeWaveformsAccessible();

}  // namespace host::audition

#pragma once

namespace host::audition {

/// Lets assistive technology read a waveform's position and loop, and set the position. Further
/// calls have no effect.
void makeWaveformsAccessible();

}  // namespace host::audition

#pragma once

namespace host::app {

/// Lets assistive programs read a waveform's place and loop, and move the place. May be called
/// again.
void makeWaveformsAccessible();

}  // namespace host::app

#pragma once

#include <QString>

#include "audio_unit/AudioUnitTypes.h"

namespace converter {
class ConverterUnit;
}

namespace host::audition {

/// Whether a listening test runs in the unit's view.
bool listeningTestRuns(AudioUnit unit);

/// Frames of encoded signal that came too late and were silence.
std::uint64_t lateFrames(converter::ConverterUnit& unit);

/// The encoder setting really used, the bit rate it comes to and the latency. While a listening
/// test runs, nothing that changes with what is heard or encoded.
QString encoderText(converter::ConverterUnit& unit, double sampleRate);

}  // namespace host::audition

#pragma once

#include <QString>

#include "audio_unit/AudioUnitTypes.h"

namespace converter {
class ConverterUnit;
}

namespace host::audition {

/// Whether a listening test is running in the unit's view.
bool listeningTestRuns(AudioUnit unit);

/// Frames of the encoded signal that were too late and replaced by silence.
std::uint64_t lateFrames(converter::ConverterUnit& unit);

/// The encoder setting actually used, its bit rate and the latency. While a listening test is
/// running, it shows nothing that depends on what is heard or encoded.
QString encoderText(converter::ConverterUnit& unit, double sampleRate);

}  // namespace host::audition

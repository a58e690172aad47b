#pragma once

#include <optional>

#include "host/analysis/OfflineRun.h"
#include "host/analysis/Progress.h"
#include "host/analysis/SharedOverview.h"
#include "host/files/AudioSource.h"
#include "host/unit/ConverterSetup.h"
#include "host/unit/EncoderSetting.h"
#include "host/unit/Readings.h"

namespace host {

/// Reads a source from its position to its end and draws it into the overview, with the overs of
/// the source at the places where `OfflineRun` locates them.
void scanSource(AudioSource& source, SharedOverview& overview, Progress& progress);

/// Runs a source off line through a unit of its own and marks in the overview where the encoded
/// signal exceeds full scale. Gives the readings of the whole source, or nothing when it was
/// stopped. Throws `Failure` as `OfflineRun` does.
std::optional<Readings> scanEncoded(AudioSource& source, const EncoderSetting& setting,
                                    SharedOverview& overview, Progress& progress,
                                    const MakeUnit& make = unitFor);

}  // namespace host
